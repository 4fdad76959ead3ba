# The sources keep to their layers: nothing outside the seam knows a system, and includes point downwards only.
# cmake -DSOURCE=FOLDER -P layers.cmake

cmake_minimum_required(VERSION 3.25)

set(faults "")

# What the files of a layer may include besides their own: the layers below. A layer is a folder; "interface" are the
# three headers that hosts include, which lie in core. core/plugin alone knows all finders; a finder folder knows no other, but
# for steam, which reads two of the catalogue's indexes.
set(may_interface "")
set(may_core_plugin catalogue core interface platform runtimes steam stores support trace)
set(may_steam catalogue core interface platform support trace)
set(may_catalogue core interface platform support trace)
set(may_stores core interface platform support trace)
set(may_runtimes core interface platform support trace)
set(may_core interface platform support trace)
set(may_support platform trace)
set(may_trace "")
set(may_platform "")
set(may_platform_recorded platform recordings)
set(may_platform_windows platform)
set(may_recordings "")
set(may_find_pc platform recordings)
set(may_find_terminal "")
set(may_find_catalogue find_pc find_terminal interface recordings trace)
set(may_find_answers ${may_find_catalogue} find_catalogue)
set(may_find_explain ${may_find_answers} find_answers)
set(may_find_record ${may_find_explain} find_explain)
set(may_find_list ${may_find_record} find_record)
set(may_find_report ${may_find_list} find_list)
set(may_find_cli ${may_find_report} find_report)

# The namespaces of the headers of a layer.
set(namespace_platform Platform)
set(namespace_platform_recorded Recorded)
set(namespace_platform_windows Platform)
set(namespace_recordings Recordings)

file(GLOB_RECURSE files RELATIVE "${SOURCE}" "${SOURCE}/src/*.h" "${SOURCE}/src/*.cpp" "${SOURCE}/find/*.h"
     "${SOURCE}/find/*.cpp" "${SOURCE}/recordings/*.h" "${SOURCE}/recordings/*.cpp")

# The layer that a file belongs to, by its path below src/ or the source folder.
function(layer_of path result)
    if(path MATCHES "^core/(GameLocation|IGameFinder|IGameFinderFactory)[.]h$")
        set(layer interface)
    elseif(path MATCHES "^(core/plugin|find/[a-z]+|platform/recorded|platform/windows)/")
        string(REPLACE "/" "_" layer "${CMAKE_MATCH_1}")
    else()
        string(REGEX REPLACE "/.*" "" layer "${path}")
    endif()
    set(${result} "${layer}" PARENT_SCOPE)
endfunction()

foreach(file IN LISTS files)
    file(READ "${SOURCE}/${file}" text)
    string(REGEX REPLACE "^src/" "" path "${file}")
    layer_of("${path}" layer)

    string(REGEX MATCHALL "#include \"[^\"]+\"" includes "${text}")
    foreach(include IN LISTS includes)
        string(REGEX REPLACE "#include \"([^\"]+)\"" "\\1" header "${include}")
        layer_of("${header}" target)
        if(header MATCHES "/" AND NOT target STREQUAL layer AND NOT target IN_LIST may_${layer})
            list(APPEND faults "${file}: includes ${header} from above")
        endif()
    endforeach()

    set(namespace "${namespace_${layer}}")
    if(layer MATCHES "^find_")
        set(namespace Find)
    endif()
    if(file MATCHES "^src/.*Finder[.]h$" AND NOT layer STREQUAL "interface")
        set(namespace Finders)
    endif()
    if(file MATCHES "[.]h$" AND namespace AND NOT text MATCHES "\nnamespace ${namespace}(::[A-Za-z]+)? {")
        list(APPEND faults "${file}: is not in the namespace ${namespace}")
    endif()

    if(file MATCHES "/(windows|native)/")
        continue()
    endif()
    if(text MATCHES "#[ \t]*(if|ifdef|ifndef|elif)[^\n]*(_WIN32|WIN32|Q_OS_|__linux__|__MINGW|_MSC_VER|__unix__)")
        list(APPEND faults "${file}: asks for a platform: ${CMAKE_MATCH_0}")
    endif()
    if(layer STREQUAL "platform_recorded")
        continue()
    endif()
    if(text MATCHES "#include <(windows|shlobj|share|unistd|sys/[a-z]+|dirent|fcntl)(\\.h)?>")
        list(APPEND faults "${file}: includes a system's header: ${CMAKE_MATCH_0}")
    endif()
    # What is asked of the file system goes through support/Files.h, so that the trace tells it.
    if(file MATCHES "^src/"
       AND NOT layer STREQUAL "support"
       AND text MATCHES "QFile[ :(]|QFileInfo::exists|[.]exists\\(\\)\\)|entryList|entryInfoList|symLinkTarget")
        list(APPEND faults "${file}: asks the file system past the trace: ${CMAKE_MATCH_0}")
    endif()
    # What the system has a say in, the current folder and what a separator is, goes through the seam, as do the user's
    # settings.
    if(file MATCHES "^src/"
       AND NOT layer MATCHES "^(support|platform.*)$"
       AND text MATCHES
           "[.]cd\\(|cdUp|cleanPath|[a-z]NativeSeparators|QDir::separator|[.)]absolute(File)?Path\\(\\)|currentPath|QSettings[ :(]")
        list(APPEND faults "${file}: works a path or settings out past the seam: ${CMAKE_MATCH_0}")
    endif()
endforeach()

list(LENGTH files count)
if(count LESS 30)
    message(FATAL_ERROR "only ${count} files below ${SOURCE}: the check looks in the wrong place")
endif()
if(faults)
    list(JOIN faults "\n" faults)
    message(FATAL_ERROR "${faults}")
endif()
