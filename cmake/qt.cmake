# The windows of the dialogs: the one library that links Qt.
file(GLOB qt_sources CONFIGURE_DEPENDS qt/*.cpp)
if(qt_sources)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
    add_library(orrelix_qt SHARED ${qt_sources})
    file(GLOB pictures CONFIGURE_DEPENDS qt/pictures/*.png)
    qt_add_resources(orrelix_qt pictures PREFIX /pictures BASE ${PROJECT_SOURCE_DIR}/qt/pictures FILES ${pictures})
    target_link_libraries(orrelix_qt PRIVATE orrelix orrelix_options Qt6::Widgets)
    # Qt keeps objects for the process's life, so the library that brought it in must never go.
    target_link_options(orrelix_qt PRIVATE -Wl,-z,nodelete)
    set_target_properties(orrelix_qt PROPERTIES OUTPUT_NAME VignelOrrelixQt AUTOMOC ON)
    install(TARGETS orrelix_qt LIBRARY DESTINATION ${ORRELIX_LIBRARY_DIR})
endif()
