# The windows of the dialogs: the one library that links Qt. Tests link its objects beside the static component.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)

file(GLOB qt_sources CONFIGURE_DEPENDS qt/*.cpp)
add_library(orrelix_qt_objects OBJECT ${qt_sources})
file(GLOB pictures CONFIGURE_DEPENDS qt/pictures/*.png)
qt_add_resources(orrelix_qt_objects pictures PREFIX /pictures BASE ${PROJECT_SOURCE_DIR}/qt/pictures FILES ${pictures})
target_link_libraries(orrelix_qt_objects PRIVATE orrelix_options PUBLIC Qt6::Widgets)
target_include_directories(orrelix_qt_objects PRIVATE ${PROJECT_SOURCE_DIR})
set_target_properties(orrelix_qt_objects PROPERTIES AUTOMOC ON POSITION_INDEPENDENT_CODE ON)

add_library(orrelix_qt SHARED)
target_link_libraries(orrelix_qt PRIVATE orrelix_qt_objects orrelix)
# Qt keeps objects for the process's life, so the library that brought it in must never go.
target_link_options(orrelix_qt PRIVATE -Wl,-z,nodelete)
set_target_properties(orrelix_qt PROPERTIES OUTPUT_NAME VignelOrrelixQt LINKER_LANGUAGE CXX)
