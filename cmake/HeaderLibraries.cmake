# What others made and is headers alone. Debian has them in /usr/include, among those of the system, which a build for
# another system must not see; so they are taken out of there.

# header_library(NAME FOLDER HEADER TITLE): the target luruludri_NAME, from the first folder that has FOLDER/HEADER.
function(header_library name folder header title)
    string(TOUPPER "LURULUDRI_${name}" place)
    find_path(${place} "${folder}/${header}" DOC "The folder that has ${folder}/${header} (${title})"
              NO_CMAKE_FIND_ROOT_PATH PATHS /usr/include)
    if(NOT ${place})
        message(FATAL_ERROR "No ${title}: say with -D${place}=FOLDER which folder has its ${folder}/${header}")
    endif()
    file(COPY "${${place}}/${folder}" DESTINATION "${CMAKE_BINARY_DIR}/headers/${name}")
    add_library(luruludri_${name} INTERFACE)
    target_include_directories(luruludri_${name} SYSTEM INTERFACE "${CMAKE_BINARY_DIR}/headers/${name}")
endfunction()

# Reads the command line.
header_library(cli11 CLI CLI.hpp CLI11)
# Fills in the page of a report.
header_library(mustache kainjow mustache.hpp "kainjow's Mustache")
