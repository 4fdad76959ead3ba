# The plug-in exports the plain C symbol "Create" and nothing else.
# cmake -DPLUGIN=FILE -DOBJDUMP=FILE -P exports.cmake

cmake_minimum_required(VERSION 3.25)

function(expect_equal what actual expected)
    if(NOT "${actual}" STREQUAL "${expected}")
        message(FATAL_ERROR "${what}: ${actual}\nexpected: ${expected}")
    endif()
endfunction()

if(PLUGIN MATCHES "\\.dll$")
    execute_process(COMMAND "${OBJDUMP}" -p "${PLUGIN}" OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCH "\\[Ordinal/Name Pointer\\] Table\n.*" table "${headers}")
    string(REGEX MATCHALL "\n\t\\[[ 0-9]+\\] [^\n]+" exports "${table}")
    list(TRANSFORM exports REPLACE "^\n\t\\[[ 0-9]+\\] (\\+base\\[[ 0-9]+\\] +[0-9a-f]+ )?" "")
    expect_equal("exports" "${exports}" "Create")
else()
    execute_process(COMMAND "${OBJDUMP}" -T "${PLUGIN}" OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]+" lines "${table}")
    set(exports "")
    foreach(line IN LISTS lines)
        if(line MATCHES "^[0-9a-f]+ [gw]" AND NOT line MATCHES "\\*UND\\*")
            string(REGEX REPLACE ".* " "" name "${line}")
            list(APPEND exports "${name}")
        endif()
    endforeach()
    expect_equal("exports" "${exports}" "Create")
endif()
