# Toolchain: Windows programs (x86-64), built with Debian's MinGW-w64 and run under Wine by CTest.
#
# Qt Core for Windows is what windows/build-qt makes. Its folder comes from the environment
# variable LURULUDRI_QT_WINDOWS or from CMAKE_PREFIX_PATH.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The -posix variants: the others have neither std::thread nor std::mutex.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Kept in the cache, as the environment may have none when CMake runs again. When it names another one, what was found
# in the old one is looked for anew.
foreach(folder IN ITEMS "$ENV{LURULUDRI_QT_WINDOWS}" "${LURULUDRI_QT_WINDOWS}" LISTS CMAKE_PREFIX_PATH)
    if(EXISTS "${folder}/bin/Qt5Core.dll")
        if(NOT folder STREQUAL "${LURULUDRI_QT_WINDOWS}")
            set(LURULUDRI_QT_WINDOWS "${folder}" CACHE PATH "Qt Core for Windows (from windows/build-qt)" FORCE)
            unset(Qt5_DIR CACHE)
            unset(Qt5Core_DIR CACHE)
        endif()
        break()
    endif()
endforeach()
# CMake reads this file again for each of its checks of the compiler.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES LURULUDRI_QT_WINDOWS)
if(NOT EXISTS "${LURULUDRI_QT_WINDOWS}/bin/Qt5Core.dll")
    message(FATAL_ERROR "No Qt Core for Windows. Make it, and name its folder, by\n"
        "  export LURULUDRI_QT_WINDOWS=$(windows/build-qt)")
endif()

# The compiler's runtime becomes part of each program and library, as it is of Qt's DLL: none of it has to travel, and
# no host has to share it.
add_link_options(-static)

# The host's programs are of use here, its libraries are not.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 "${LURULUDRI_QT_WINDOWS}" ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

cmake_path(SET wine_run NORMALIZE "${CMAKE_CURRENT_LIST_DIR}/../windows/wine-run")
# wine-run finds the DLLs of Qt by the variable.
set(CMAKE_CROSSCOMPILING_EMULATOR env "LURULUDRI_QT_WINDOWS=${LURULUDRI_QT_WINDOWS}" "${wine_run}")
