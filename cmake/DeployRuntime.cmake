# Puts Qt's DLL, the only one that a Windows program or plug-in needs, beside it, so that its folder runs as it is.

function(deploy_runtime target)
    add_custom_command(
        TARGET ${target} POST_BUILD
        COMMAND "${CMAKE_COMMAND}" -E copy_if_different $<TARGET_FILE:Qt5::Core> "$<TARGET_FILE_DIR:${target}>"
        VERBATIM)
endfunction()
