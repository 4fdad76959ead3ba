# The sources keep to their layers: nothing outside the seam knows a system, and includes point downwards only.
# cmake -DSOURCE=FOLDER -P layers.cmake

cmake_minimum_required(VERSION 3.25)

set(faults "")

# What the files of a folder may include, besides their own folder's and the system's headers.
set(may_core catalogue runtimes steam stores support)
set(may_steam catalogue support)
set(may_catalogue support)
set(may_stores support)
set(may_runtimes support)
set(may_support "")
# The headers of core that stand below all finders: the interfaces and what their implementations share.
set(shared_core core/AbstractFinder.h core/GameLocation.h core/IGameFinder.h core/LocationFilling.h)

file(GLOB_RECURSE files RELATIVE "${SOURCE}" "${SOURCE}/src/*.h" "${SOURCE}/src/*.cpp" "${SOURCE}/host/*.h"
     "${SOURCE}/host/*.cpp")
foreach(file IN LISTS files)
    file(READ "${SOURCE}/${file}" text)
    if(file MATCHES "/(windows|native)/")
        continue()
    endif()
    if(text MATCHES "#[ \t]*(if|ifdef|ifndef|elif)[^\n]*(_WIN32|WIN32|Q_OS_|__linux__|__MINGW|_MSC_VER|__unix__)")
        list(APPEND faults "${file}: asks for a platform: ${CMAKE_MATCH_0}")
    endif()
    if(file MATCHES "/recorded/")
        continue()
    endif()
    if(text MATCHES "#include <(windows|shlobj|share|unistd|sys/[a-z]+|dirent|fcntl)(\\.h)?>")
        list(APPEND faults "${file}: includes a system's header: ${CMAKE_MATCH_0}")
    endif()
    if(NOT file MATCHES "^src/([a-z]+)/")
        continue()
    endif()
    set(folder "${CMAKE_MATCH_1}")
    # What is asked of the file system goes through support/Files.h, so that the trace tells it.
    if(NOT folder STREQUAL "support"
       AND text MATCHES "QFile[ :(]|QFileInfo::exists|[.]exists\\(\\)\\)|entryList|entryInfoList|symLinkTarget")
        list(APPEND faults "${file}: asks the file system past the trace: ${CMAKE_MATCH_0}")
    endif()
    string(REGEX MATCHALL "#include \"[^\"]+\"" includes "${text}")
    foreach(include IN LISTS includes)
        string(REGEX REPLACE "#include \"([^\"]+)\"" "\\1" header "${include}")
        string(REGEX REPLACE "/.*" "" target "${header}")
        if(NOT header MATCHES "/" OR target STREQUAL folder OR target IN_LIST may_${folder})
            continue()
        endif()
        if(header IN_LIST shared_core AND NOT folder STREQUAL "support")
            continue()
        endif()
        list(APPEND faults "${file}: includes ${header} from above")
    endforeach()
endforeach()

list(LENGTH files count)
if(count LESS 30)
    message(FATAL_ERROR "only ${count} files below ${SOURCE}: the check looks in the wrong place")
endif()
if(faults)
    list(JOIN faults "\n" faults)
    message(FATAL_ERROR "${faults}")
endif()
