# Windows' programs and libraries need what Windows has and Qt Core, which lies beside them, and nothing else.
# cmake "-DFILES=FILE;…" -DOBJDUMP=FILE -P imports.cmake

cmake_minimum_required(VERSION 3.25)

set(allowed ADVAPI32.dll KERNEL32.dll MPR.dll NETAPI32.dll SHELL32.dll USER32.dll USERENV.dll VERSION.dll WINMM.dll
            WS2_32.dll msvcrt.dll ole32.dll Qt5Core.dll)

foreach(file IN LISTS FILES)
    execute_process(COMMAND "${OBJDUMP}" -p "${file}" OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "DLL Name: [^\n]+" imports "${headers}")
    list(TRANSFORM imports REPLACE "DLL Name: " "")
    if(NOT "KERNEL32.dll" IN_LIST imports)
        message(FATAL_ERROR "${file}: its imports cannot be read")
    endif()
    get_filename_component(folder "${file}" DIRECTORY)
    if("Qt5Core.dll" IN_LIST imports AND NOT EXISTS "${folder}/Qt5Core.dll")
        message(FATAL_ERROR "${file}: Qt5Core.dll does not lie beside it")
    endif()
    list(REMOVE_ITEM imports ${allowed})
    if(imports)
        message(FATAL_ERROR "${file}: needs, besides Windows and Qt Core: ${imports}")
    endif()
endforeach()
