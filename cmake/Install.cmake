# What a host's engineer gets: by `cmake --install`, and as the zip file that CPack makes of the same.

include(CMakePackageConfigHelpers)

# Which hosts the package is for; the package itself asks the same of a host.
set(LURULUDRI_SYSTEM "${CMAKE_SYSTEM_NAME}")
if(MSVC)
    set(LURULUDRI_SYSTEM win64-msvc)
elseif(WIN32)
    set(LURULUDRI_SYSTEM win64-mingw)
endif()
set(LURULUDRI_PACKAGE "${PROJECT_NAME}-${PROJECT_VERSION}-${LURULUDRI_SYSTEM}")

set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_FILE_NAME "${LURULUDRI_PACKAGE}")
set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_VENDOR "Veltrane")
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}")
set(CPACK_STRIP_FILES ON)
include(CPack)

# The plug-in lies beside the program, which looks for it there, and so does the catalogue.
install(TARGETS Luruludri LIBRARY DESTINATION bin)
install(TARGETS luruludri-find RUNTIME DESTINATION bin)
install(FILES samples/catalogue.json DESTINATION bin)

# All that a host includes.
set(LURULUDRI_INTERFACE src/core/GameLocation.h src/core/IGameFinder.h src/core/IGameFinderFactory.h)
install(FILES ${LURULUDRI_INTERFACE} DESTINATION include/luruludri)

set(config "${CMAKE_CURRENT_BINARY_DIR}/package")
configure_package_config_file(cmake/LuruludriConfig.cmake.in "${config}/LuruludriConfig.cmake"
                              INSTALL_DESTINATION lib/cmake/Luruludri NO_SET_AND_CHECK_MACRO
                              NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file("${config}/LuruludriConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${config}/LuruludriConfig.cmake" "${config}/LuruludriConfigVersion.cmake" cmake/DebugHost.h
        DESTINATION lib/cmake/Luruludri)

# The README, and the documents that it and they link.
file(GLOB documents CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/docs/*.md")
# Those for who changes the library cite its sources, which are not in the package.
list(FILTER documents EXCLUDE REGEX "/(architecture|testing|performance)\\.md$")
include(PackageReadme)
file(READ README.md readme)
package_readme("${readme}" readme)
file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/package/README.md" "${readme}")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS README.md)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/package/README.md" DESTINATION .)
install(FILES ${documents} docs/catalogue.schema.json DESTINATION docs)
# What completes its command line lies where the shells look for it; Windows has no such places.
set(shell docs/shell/luruludri-find.bash docs/shell/_luruludri-find docs/shell/luruludri-find.ps1)
if(WIN32)
    install(FILES ${shell} DESTINATION docs/shell)
else()
    install(FILES docs/shell/luruludri-find.bash DESTINATION share/bash-completion/completions RENAME luruludri-find)
    install(FILES docs/shell/_luruludri-find DESTINATION share/zsh/site-functions)
    install(FILES docs/shell/luruludri-find.ps1 DESTINATION docs/shell)
    install(FILES docs/shell/luruludri-find.1 DESTINATION share/man/man1)
endif()
install(FILES docs/host/CMakeLists.txt docs/host/main.cpp docs/host/mingw-w64.cmake DESTINATION docs/host)

# Windows has no Qt of its own. What is made by others travels with what they ask for.
if(WIN32)
    install(FILES $<TARGET_FILE:Qt5::Core> DESTINATION bin)
endif()
if(MSVC)
    set(notices "${CMAKE_CURRENT_BINARY_DIR}/THIRD-PARTY-NOTICES.txt")
    configure_file(windows/msvc/notices.txt.in "${notices}" @ONLY NEWLINE_STYLE CRLF)
    install(FILES "${notices}" windows/msvc/LGPL-3.txt windows/msvc/GPL-3.txt DESTINATION .)
elseif(WIN32)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    set(notices "${CMAKE_CURRENT_BINARY_DIR}/THIRD-PARTY-NOTICES.txt")
    add_custom_command(
        OUTPUT "${notices}"
        COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/windows/notices" "${LURULUDRI_QT_WINDOWS}" "${notices}"
        DEPENDS windows/notices windows/notices.txt
        VERBATIM)
    add_custom_target(notices ALL DEPENDS "${notices}")
    install(FILES "${notices}" DESTINATION .)
endif()
