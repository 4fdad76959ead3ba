#error Luruludri serves release builds of a host only: a debug build loads Qt5Cored.dll, the plug-in Qt5Core.dll, and the two share no objects. Build Release or RelWithDebInfo.
