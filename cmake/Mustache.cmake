# kainjow's Mustache, which fills in the page of a report: one header. Debian has it in /usr/include, among those of the
# system, which a build for another system must not see; so it is taken out of there.

find_path(LURULUDRI_MUSTACHE kainjow/mustache.hpp DOC "The folder that has kainjow/mustache.hpp"
          NO_CMAKE_FIND_ROOT_PATH PATHS /usr/include)
if(NOT LURULUDRI_MUSTACHE)
    message(FATAL_ERROR "No Mustache: say with -DLURULUDRI_MUSTACHE=FOLDER which folder has its kainjow/mustache.hpp")
endif()
file(COPY "${LURULUDRI_MUSTACHE}/kainjow" DESTINATION "${CMAKE_BINARY_DIR}/mustache")

add_library(luruludri_mustache INTERFACE)
target_include_directories(luruludri_mustache SYSTEM INTERFACE "${CMAKE_BINARY_DIR}/mustache")
