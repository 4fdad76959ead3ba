# Toolchain: clang for Windows, as HOST_TARGET says. It compiles only, as nothing to link with need be there.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_COMPILER_TARGET "${HOST_TARGET}")
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES HOST_TARGET)
