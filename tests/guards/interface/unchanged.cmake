# The binary interface is the one that hosts have been built with: every operation has its slot, every field its place.
# cmake "-DHEADERS=FILE;…" -DSCRATCH=FOLDER -P unchanged.cmake

cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/Layouts.cmake")

copy_headers("${SCRATCH}")
foreach(abi IN LISTS abis)
    lay_out("${SCRATCH}" ${abi} actual)
    read_frozen(${abi} frozen)
    if(NOT actual STREQUAL frozen)
        message(NOTICE "It is:\n${actual}\nHosts have been built with:\n${frozen}")
        message(FATAL_ERROR "the interface has changed (${abi})")
    endif()
endforeach()
