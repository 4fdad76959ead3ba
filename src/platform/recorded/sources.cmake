# The platform layer over a recorded PC.
target_sources(
    luruludri_platform
    PRIVATE platform/recorded/Clocks.cpp
            platform/recorded/CurrentPc.cpp
            platform/recorded/DriveFileEngine.cpp
            platform/recorded/Files.cpp
            platform/recorded/FolderLock.cpp
            platform/recorded/Folders.cpp
            platform/recorded/Listing.cpp
            platform/recorded/Locks.cpp
            platform/recorded/Observer.cpp
            platform/recorded/Paths.cpp
            platform/recorded/PcPaths.cpp
            platform/recorded/PlainFile.cpp
            platform/recorded/Process.cpp
            platform/recorded/Registry.cpp
            platform/recorded/Settings.cpp
            platform/recorded/SystemFunctions.cpp
            platform/recorded/TextStream.cpp
            platform/recorded/Versions.cpp)
# Qt's file engines are among its private headers (qtbase5-private-dev).
target_link_libraries(luruludri_platform PRIVATE Qt5::CorePrivate)
