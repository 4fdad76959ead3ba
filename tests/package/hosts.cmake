# A package serves the hosts that it is made for, and tells all others why not: a compiler of the other family, a debug
# build.
# cmake -DPACKAGES=FOLDER -DSCRATCH=FOLDER -DVERSION=NUMBER -P hosts.cmake; FOLDER has one for each kind of host

cmake_minimum_required(VERSION 3.25)

set(hosts "${CMAKE_CURRENT_LIST_DIR}/hosts")
set(target_win64-mingw x86_64-w64-windows-gnu)
set(target_win64-msvc x86_64-pc-windows-msvc)

# Sets `status` and `output` to those of a command.
macro(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
endmacro()

# Configures a host of the kind with a package in a folder, once more if it is there: configure(HOST PACKAGE FOLDER OPTION…)
macro(configure host package folder)
    set(toolchain "")
    if(DEFINED target_${host})
        set(toolchain "-DCMAKE_TOOLCHAIN_FILE=${hosts}/windows.cmake" "-DHOST_TARGET=${target_${host}}")
    endif()
    run("${CMAKE_COMMAND}" -S "${hosts}" -B "${folder}" ${toolchain}
        "-DLuruludri_DIR=${PACKAGES}/${package}/lib/cmake/Luruludri" "-DQt5_DIR=${hosts}/qt" ${ARGN})
endmacro()

function(expect_served)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "refused: ${ARGN}\n${output}")
    endif()
endfunction()

# A sentence that is told, however the lines are broken.
function(expect_refused sentence)
    string(REGEX REPLACE "[ \n]+" " " text "${output}")
    string(FIND "${text}" "${sentence}" place)
    if(status EQUAL 0 OR place LESS 0)
        message(FATAL_ERROR "not refused (${status}) by \"${sentence}\": ${ARGN}\n${output}")
    endif()
endfunction()

set(kinds Linux win64-mingw win64-msvc)
file(REMOVE_RECURSE "${SCRATCH}")
foreach(host IN LISTS kinds)
    set(folder "${SCRATCH}/${host}")
    foreach(package IN LISTS kinds)
        configure(${host} ${package} "${folder}" -G Ninja -DCMAKE_BUILD_TYPE=Release)
        if(host STREQUAL package)
            expect_served("${host}")
            run("${CMAKE_COMMAND}" --build "${folder}")
            expect_served("${host}, built")
        else()
            expect_refused("This package of Luruludri is for hosts of the kind ${package}. This host's compiler is of the \
kind ${host}: take the package Luruludri-${VERSION}-${host} instead." "a ${host} host")
        endif()
    endforeach()
endforeach()

set(reason "Luruludri serves release builds of a host only: a debug build loads Qt5Cored.dll, the plug-in Qt5Core.dll, \
and the two share no objects.")
foreach(host IN ITEMS win64-mingw win64-msvc)
    set(folder "${SCRATCH}/${host}")
    configure(${host} ${host} "${folder}" -G Ninja -DCMAKE_BUILD_TYPE=Debug)
    expect_refused("${reason} Set CMAKE_BUILD_TYPE to Release or RelWithDebInfo." "a debug build of a ${host} host")

    configure(${host} ${host} "${folder}" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo)
    expect_served("a release build with debug information of a ${host} host")

    # Where the build is chosen late, as in Visual Studio, whatever else is said early.
    set(folder "${SCRATCH}/${host} late")
    configure(${host} ${host} "${folder}" -G "Ninja Multi-Config" -DCMAKE_BUILD_TYPE=Debug)
    expect_served("a ${host} host that can be built in several ways")
    run("${CMAKE_COMMAND}" --build "${folder}" --config Debug)
    expect_refused("${reason} Build Release or RelWithDebInfo." "a late debug build of a ${host} host")
    run("${CMAKE_COMMAND}" --build "${folder}" --config Release)
    expect_served("a late release build of a ${host} host")
endforeach()
