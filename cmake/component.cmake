# The component: everything but windows, program, tests and benches. It needs the standard library and nothing else.
file(GLOB component_sources CONFIGURE_DEPENDS
    core/*.cpp gadgets/*.cpp dialogs/*.cpp controls/*.cpp resources/*.cpp toolkit/*.cpp platform/*.cpp)

add_library(orrelix SHARED ${component_sources})
target_link_libraries(orrelix PRIVATE orrelix_options ${CMAKE_DL_LIBS})
target_include_directories(orrelix PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
set_target_properties(orrelix PROPERTIES OUTPUT_NAME VignelOrrelix)

install(TARGETS orrelix LIBRARY DESTINATION ${ORRELIX_LIBRARY_DIR})
install(DIRECTORY controls core dialogs gadgets platform resources toolkit DESTINATION include/orrelix
    FILES_MATCHING PATTERN "*.h")
