# The platform layer over a recorded PC.
target_sources(
    luruludri_platform
    PRIVATE support/recorded/AnsiText.cpp
            support/recorded/ByteView.cpp
            support/recorded/CurrentPc.cpp
            support/recorded/DriveFileEngine.cpp
            support/recorded/DriveFolderIterator.cpp
            support/recorded/Drives.cpp
            support/recorded/HostFiles.cpp
            support/recorded/Json.cpp
            support/recorded/Observer.cpp
            support/recorded/PcDescription.cpp
            support/recorded/PlatformFiles.cpp
            support/recorded/PlatformFolders.cpp
            support/recorded/PlatformListing.cpp
            support/recorded/PlatformPackages.cpp
            support/recorded/PlatformProcess.cpp
            support/recorded/PlatformRegistry.cpp
            support/recorded/PlatformStream.cpp
            support/recorded/PlatformVersion.cpp
            support/recorded/RecordedPc.cpp
            support/recorded/RecordedRegistry.cpp
            support/recorded/Recording.cpp
            support/recorded/RegCursor.cpp
            support/recorded/RegFile.cpp
            support/recorded/RegText.cpp
            support/recorded/RegistryTree.cpp
            support/recorded/ShellLink.cpp
            support/recorded/Utf8Reader.cpp)
# Qt's file engines are among its private headers (qtbase5-private-dev).
target_link_libraries(luruludri_platform PRIVATE Qt5::CorePrivate)
