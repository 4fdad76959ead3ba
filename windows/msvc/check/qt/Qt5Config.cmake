# Qt Core as far as compiling goes: the headers of the system's own, which know Windows and Microsoft's compiler.

find_path(QT_HEADERS QtCore PATHS /usr/include/x86_64-linux-gnu/qt5 NO_DEFAULT_PATH REQUIRED)
set(Qt5_VERSION 5.15)
set(Qt5_FOUND TRUE)
add_library(Qt5::Core SHARED IMPORTED)
set_target_properties(
    Qt5::Core
    PROPERTIES IMPORTED_LOCATION "${CMAKE_CURRENT_LIST_DIR}/Qt5Core.dll"
               IMPORTED_IMPLIB "${CMAKE_CURRENT_LIST_DIR}/Qt5Core.lib"
               INTERFACE_INCLUDE_DIRECTORIES "${QT_HEADERS};${QT_HEADERS}/QtCore"
               INTERFACE_COMPILE_DEFINITIONS QT_CORE_LIB)
