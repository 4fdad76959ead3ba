# Every test source is built: one that no program names would fail nowhere.
# cmake -DSOURCE=FOLDER -P builttests.cmake

cmake_minimum_required(VERSION 3.25)

file(GLOB_RECURSE lists "${SOURCE}/tests/CMakeLists.txt")
set(built "")
foreach(list IN LISTS lists)
    file(READ "${list}" text)
    string(REGEX MATCHALL "[a-z/]*tst_[a-z]+\\.cpp" sources "${text}")
    get_filename_component(folder "${list}" DIRECTORY)
    list(TRANSFORM sources PREPEND "${folder}/")
    list(APPEND built ${sources})
endforeach()

file(GLOB_RECURSE tests "${SOURCE}/tests/tst_*.cpp")
list(LENGTH tests count)
if(count EQUAL 0)
    message(FATAL_ERROR "no test sources in ${SOURCE}/tests")
endif()
foreach(test IN LISTS tests)
    if(NOT test IN_LIST built)
        message(SEND_ERROR "${test} is built by no program")
    endif()
endforeach()
