# Stands in for a Qt of Windows that has, as Qt's own for Microsoft's compiler, a module for debug builds.

set(Qt5_VERSION 5.15.2)
set(Qt5_FOUND TRUE)
add_library(Qt5::Core SHARED IMPORTED)
set_target_properties(
    Qt5::Core
    PROPERTIES IMPORTED_CONFIGURATIONS "RELEASE;DEBUG"
               IMPORTED_LOCATION_RELEASE "${CMAKE_CURRENT_LIST_DIR}/Qt5Core.dll"
               IMPORTED_LOCATION_DEBUG "${CMAKE_CURRENT_LIST_DIR}/Qt5Cored.dll"
               IMPORTED_IMPLIB_RELEASE "${CMAKE_CURRENT_LIST_DIR}/Qt5Core.lib"
               IMPORTED_IMPLIB_DEBUG "${CMAKE_CURRENT_LIST_DIR}/Qt5Cored.lib")
