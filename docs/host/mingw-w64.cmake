# Toolchain: programs for 64-bit Windows, built on Linux with MinGW-w64. (On Windows itself none is needed.)
#
# CMAKE_PREFIX_PATH names the folders of Luruludri's package and of a Qt 5.15 for MinGW.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# Of Debian's two variants the one with threads, where both are there.
find_program(MINGW_CXX NAMES x86_64-w64-mingw32-g++-posix x86_64-w64-mingw32-g++ REQUIRED)
set(CMAKE_CXX_COMPILER "${MINGW_CXX}")

# The compiler's runtime becomes part of the program, so that Qt5Core.dll and Luruludri.dll are all that lies beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

# Programs are those of this system, everything else is for Windows.
set(CMAKE_FIND_ROOT_PATH ${CMAKE_PREFIX_PATH})
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CMAKE_PREFIX_PATH)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
