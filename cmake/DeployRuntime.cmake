# Puts the DLLs that a Windows program or plug-in needs beside it, so that its folder runs as it is.

function(deploy_runtime target)
    set(dlls $<TARGET_FILE:Qt5::Core>)
    foreach(name IN ITEMS libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
        execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${name} OUTPUT_VARIABLE dll
                        OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        if(NOT EXISTS "${dll}")
            find_file(dll_${name} ${name} PATH_SUFFIXES lib bin REQUIRED NO_CACHE)
            set(dll "${dll_${name}}")
        endif()
        list(APPEND dlls "${dll}")
    endforeach()
    add_custom_command(
        TARGET ${target} POST_BUILD
        COMMAND "${CMAKE_COMMAND}" -E copy_if_different ${dlls} "$<TARGET_FILE_DIR:${target}>"
        VERBATIM)
endfunction()
