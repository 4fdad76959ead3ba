# The README shows the host that is built and run as a test, letter by letter.
# cmake -DSOURCE=FOLDER -P readme.cmake

cmake_minimum_required(VERSION 3.25)

file(READ "${SOURCE}/README.md" readme)
file(READ "${SOURCE}/docs/host/main.cpp" host)
string(FIND "${readme}" "\n```cpp\n${host}```\n" place)
if(place LESS 0)
    message(FATAL_ERROR "README.md has no cpp block that is docs/host/main.cpp")
endif()
