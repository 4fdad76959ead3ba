# How clang lays out the interface between host and plug-in: as Microsoft's compiler does, and as GCC does on Windows.
# Stand-ins take the place of Qt and of the standard library, whose own headers for these targets need not be there.

find_program(CLANG clang++ NO_CACHE)
if(NOT CLANG)
    message(FATAL_ERROR "clang++ is missing; it is in Debian's package clang")
endif()

set(abis microsoft gcc)
set(target_microsoft x86_64-pc-windows-msvc)
set(target_gcc x86_64-w64-windows-gnu)

# Copies the headers to FOLDER/luruludri.
function(copy_headers folder)
    file(REMOVE_RECURSE "${folder}")
    file(COPY ${HEADERS} DESTINATION "${folder}/luruludri")
endfunction()

# Sets the variable `result` to the tables and the record that clang makes of the headers in FOLDER/luruludri.
function(lay_out folder abi result)
    set(here "${CMAKE_CURRENT_FUNCTION_LIST_DIR}")
    set(clang "${CLANG}" --target=${target_${abi}} -nostdlibinc -std=c++17 "-I${here}/standin" "-I${folder}" -S
              -emit-llvm -o "${folder}/probe.ll" "${here}/probe.cpp" -Xclang)
    # One run for each dump, as clang writes the one into the other.
    execute_process(COMMAND ${clang} -fdump-vtable-layouts OUTPUT_VARIABLE tables COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${clang} -fdump-record-layouts OUTPUT_VARIABLE records COMMAND_ERROR_IS_FATAL ANY)
    set(text "")
    foreach(interface IN ITEMS IGameFinder IGameFinderFactory)
        string(REGEX MATCH "VF?Table indices for '${interface}' [^\n]*\n([^\n]+\n)+" table "${tables}")
        string(APPEND text "${table}\n")
    endforeach()
    string(REGEX MATCH "struct GameLocation\n([^\n]+\n)+" record "${records}")
    string(REGEX REPLACE "[^\n]* \\|     [^\n]*\n" "" record "${record}") # what is inside the fields
    string(REGEX REPLACE " +\\| \\[sizeof=([0-9]+),.*" "        \\1 bytes\n" record "${record}")
    set(${result} "${text}${record}" PARENT_SCOPE)
endfunction()

# Sets the variable `result` to the layout that hosts have been built with.
function(read_frozen abi result)
    file(READ "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/${abi}.txt" text)
    set(${result} "${text}" PARENT_SCOPE)
endfunction()
