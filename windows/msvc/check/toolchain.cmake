# Toolchain: clang in the place of Microsoft's compiler. It looks at the sources and makes nothing of them, as there is
# nothing to link with. It takes the C++ library of LLVM and the Windows headers of Wine, with what these lack in include/.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

find_program(CLANG_CL clang-cl-14 REQUIRED)
find_program(NOTHING true REQUIRED)
foreach(language IN ITEMS C CXX)
    set(CMAKE_${language}_COMPILER "${CLANG_CL}")
    set(CMAKE_${language}_COMPILER_TARGET x86_64-pc-windows-msvc)
    set(CMAKE_${language}_COMPILER_WORKS TRUE)
endforeach()
foreach(tool IN ITEMS AR LINKER MT RC_COMPILER)
    set(CMAKE_${tool} "${NOTHING}")
endforeach()
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

# /X: not the system's own headers.
set(headers /usr/lib/llvm-14/include/c++/v1 "${CMAKE_CURRENT_LIST_DIR}/include"
            /usr/include/wine/wine/msvcrt /usr/include/wine/wine/windows)
list(TRANSFORM headers PREPEND "-imsvc ")
list(JOIN headers " " headers)
set(runtime "/X ${headers} /FIstdext.h -D_LIBCPP_NO_VCRUNTIME -DWINE_UNICODE_NATIVE")
# Of narrowing and hiding Microsoft's /W4 warns, clang's only with these.
set(warnings "-Wconversion -Wshadow -Wpedantic")
set(CMAKE_CXX_FLAGS_INIT "${runtime} ${warnings} /Zs")

set(Qt5_DIR "${CMAKE_CURRENT_LIST_DIR}/qt")
