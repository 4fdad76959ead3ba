# What the project is compiled with. Every target links `luruludri_warnings`, the product's own also `luruludri_build`.

add_library(luruludri_warnings INTERFACE)

if(MSVC)
    # /EHc-: CMake's /EHsc would take it that no extern "C" function throws, but `Create` may, for want of memory.
    set(options /W4 /utf-8 /permissive- /EHc- $<$<BOOL:${LURULUDRI_WERROR}>:/WX>)
    target_compile_options(luruludri_warnings INTERFACE "$<$<COMPILE_LANGUAGE:C,CXX>:${options}>")
else()
    target_compile_options(
        luruludri_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
                                     $<$<BOOL:${LURULUDRI_WERROR}>:-Werror>)
endif()

if(WIN32)
    target_compile_definitions(luruludri_warnings INTERFACE UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN)
endif()

add_library(luruludri_build INTERFACE)
target_link_libraries(luruludri_build INTERFACE luruludri_warnings)
target_compile_definitions(
    luruludri_build
    INTERFACE QT_NO_CAST_FROM_ASCII
              QT_NO_CAST_TO_ASCII
              QT_NO_CAST_FROM_BYTEARRAY
              QT_NO_URL_CAST_FROM_STRING
              QT_NO_KEYWORDS
              QT_NO_FOREACH
              QT_DEPRECATED_WARNINGS)

if(LURULUDRI_SANITIZE)
    # All targets alike, GoogleTest included: a program whose parts differ reports what is not there.
    add_compile_options(-fsanitize=${LURULUDRI_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${LURULUDRI_SANITIZE})
endif()
if(LURULUDRI_SANITIZE MATCHES "thread" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Among ThreadSanitizer's calls GCC 12 loses sight of what std::optional holds, and warns of values that are set.
    target_compile_options(luruludri_warnings INTERFACE -Wno-maybe-uninitialized)
endif()
