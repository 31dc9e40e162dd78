# What a linker sees of the component: its four entry points, and what the windows' library needs, which its object files
# tell.
set(exports ${PROJECT_BINARY_DIR}/component.map)
set(needing_objects)
if(ORRELIX_QT)
    set(needing_objects $<TARGET_OBJECTS:orrelix_qt_objects>)
endif()
file(GENERATE OUTPUT ${exports}.objects CONTENT "$<JOIN:${needing_objects},\n>")
add_custom_command(OUTPUT ${exports} DEPENDS ${needing_objects} ${exports}.objects cmake/write_exports.cmake VERBATIM
    COMMAND ${CMAKE_COMMAND} -D NM=${CMAKE_NM} -D OBJECTS=${exports}.objects -D EXPORTS=${exports}
        -P ${PROJECT_SOURCE_DIR}/cmake/write_exports.cmake)
if(ORRELIX_QT)
    add_dependencies(orrelix orrelix_qt_objects)
endif()
target_sources(orrelix PRIVATE ${exports})
target_link_options(orrelix PRIVATE -Wl,--version-script=${exports})
set_target_properties(orrelix PROPERTIES LINK_DEPENDS ${exports})
