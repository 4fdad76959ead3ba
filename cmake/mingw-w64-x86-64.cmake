# Toolchain: Windows programs (x86-64) built with Debian's MinGW-w64, and run by
# CTest under Wine.
#
# Qt Core for Windows comes from windows/build-qt, whose folder is given either as
# the environment variable LURULUDRI_QT_WINDOWS or in CMAKE_PREFIX_PATH.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The -posix variants: the others have no std::thread and std::mutex.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Kept in the cache: the environment need not be the same when CMake runs again,
# and CMake reads this file anew for each of its checks of the compiler.
set(LURULUDRI_QT_WINDOWS "$ENV{LURULUDRI_QT_WINDOWS}" CACHE PATH "Qt Core for Windows (see windows/build-qt)")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES LURULUDRI_QT_WINDOWS)
foreach(folder IN LISTS CMAKE_PREFIX_PATH)
    if(NOT LURULUDRI_QT_WINDOWS AND EXISTS "${folder}/bin/Qt5Core.dll")
        set(LURULUDRI_QT_WINDOWS "${folder}")
    endif()
endforeach()

# Libraries of the host are of no use, its programs (such as moc) are.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${LURULUDRI_QT_WINDOWS} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# wine-run finds the DLLs of Qt by the variable.
set(CMAKE_CROSSCOMPILING_EMULATOR
    env "LURULUDRI_QT_WINDOWS=${LURULUDRI_QT_WINDOWS}" "${CMAKE_CURRENT_LIST_DIR}/../windows/wine-run")
