# The check of the interface notices what would break a host: it is fed with headers that each have one fault.
# cmake "-DHEADERS=FILE;…" -DSCRATCH=FOLDER -P faults.cmake

cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/Layouts.cmake")

# Replaces a text that the header has exactly once.
function(change file old new)
    file(READ "${file}" text)
    string(REPLACE "${old}" "${new}" changed "${text}")
    string(REPLACE "${old}" "" without "${text}")
    string(LENGTH "${text}" before)
    string(LENGTH "${without}" after)
    string(LENGTH "${old}" length)
    math(EXPR times "(${before} - ${after}) / ${length}")
    if(NOT times EQUAL 1)
        message(FATAL_ERROR "${file} has \"${old}\" ${times} times, not once: the fault cannot be planted")
    endif()
    file(WRITE "${file}" "${changed}")
endfunction()

# Swaps two texts of the header.
function(swap file one other)
    change("${file}" "${one}" "@one@")
    change("${file}" "${other}" "${one}")
    change("${file}" "@one@" "${other}")
endfunction()

# The headers as they are now changed lay out differently.
function(expect_noticed fault)
    foreach(abi IN LISTS abis)
        lay_out("${SCRATCH}" ${abi} actual)
        read_frozen(${abi} frozen)
        if(actual STREQUAL frozen)
            message(FATAL_ERROR "not noticed (${abi}): ${fault}")
        endif()
    endforeach()
    copy_headers("${SCRATCH}")
endfunction()

set(record "${SCRATCH}/luruludri/GameLocation.h")
set(finder "${SCRATCH}/luruludri/IGameFinder.h")
set(factory "${SCRATCH}/luruludri/IGameFinderFactory.h")
copy_headers("${SCRATCH}")

swap("${finder}" "virtual QString userLocation() = 0;" "virtual void setUserLocation(const QString& path) = 0;")
expect_noticed("swapped operations of the finder")

swap("${factory}" "virtual QString varjoRuntimeFolder() = 0;" "virtual QString openXrActiveRuntime() = 0;")
expect_noticed("swapped operations of the factory")

change("${factory}" "virtual QString steamVrFolder() = 0;"
       "virtual QString steamVrFolder() = 0; virtual QString steamVrFolder(int which) = 0;")
expect_noticed("an overload at the end")

change("${factory}" "virtual QString steamExecutablePath() = 0;"
       "virtual QString steamExecutablePath() = 0; virtual std::unique_ptr<IGameFinder> createFolderFinder(int) = 0;")
expect_noticed("an overload of an earlier operation")

change("${finder}" "virtual ~IGameFinder() = default;" "~IGameFinder() = default;")
expect_noticed("a destructor that has no slot")

change("${factory}" "virtual QString steamConfigFolder() = 0;" "")
expect_noticed("an operation that is gone")

change("${factory}" "createUniversalAppFinder(const QString& packageFamily)"
       "createUniversalAppFinder(const QString& packageFamily, int matchMode)")
expect_noticed("another argument")

change("${finder}" "virtual bool find(" "virtual int find(")
expect_noticed("another result")

swap("${record}" "QString launchCommand;" "QString executablePath;")
expect_noticed("swapped fields of one type")

swap("${record}" "QStringList executablePaths;" "QString installFolder;")
expect_noticed("swapped fields of two types")

change("${record}" "bool hostFlag = false;" "bool hostFlag = false; bool found = false;")
expect_noticed("another field")
