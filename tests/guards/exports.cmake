# The plug-in exports the plain C symbol "Create" and nothing else. (tst_modules checks this on Windows.)
# cmake -DPLUGIN=FILE -DOBJDUMP=FILE -P exports.cmake

cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND "${OBJDUMP}" -T "${PLUGIN}" OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" lines "${table}")
set(exports "")
foreach(line IN LISTS lines)
    if(line MATCHES "^[0-9a-f]+ [gw]" AND NOT line MATCHES "\\*UND\\*")
        string(REGEX REPLACE ".* " "" name "${line}")
        list(APPEND exports "${name}")
    endif()
endforeach()
if(NOT "${exports}" STREQUAL "Create")
    message(FATAL_ERROR "exports: ${exports}\nexpected: Create")
endif()
