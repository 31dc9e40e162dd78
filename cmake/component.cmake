# The component: everything but the Qt windows, program, tests and benches. It needs the standard library and nothing
# else.
set(platform_services file_system file_lock module screen user_folder)
if(WIN32)
    list(TRANSFORM platform_services APPEND _windows.cpp)
else()
    list(TRANSFORM platform_services APPEND _posix.cpp)
endif()
list(TRANSFORM platform_services PREPEND platform/)

# The lower floor: the store, the parameters, the HTML and the contract of all gadgets. It knows no gadget and no
# dialog.
file(GLOB store_sources CONFIGURE_DEPENDS core/*.cpp platform/*.cpp)
list(FILTER store_sources EXCLUDE REGEX "core/orrelix\\.cpp$|_(posix|windows)\\.cpp$")
add_library(orrelix_store OBJECT ${store_sources} ${platform_services})

# The upper floor: the gadgets, their dialogs, and the object that hosts see.
file(GLOB component_sources CONFIGURE_DEPENDS
    gadgets/*.cpp dialogs/*.cpp controls/*.cpp resources/*.cpp toolkit/*.cpp)
add_library(orrelix_component OBJECT core/orrelix.cpp ${component_sources})

foreach(floor orrelix_store orrelix_component)
    target_link_libraries(${floor} PRIVATE orrelix_options)
    target_include_directories(${floor} PRIVATE ${PROJECT_SOURCE_DIR})
    set_target_properties(${floor} PROPERTIES POSITION_INDEPENDENT_CODE ON)
endforeach()

add_library(orrelix SHARED $<TARGET_OBJECTS:orrelix_store> $<TARGET_OBJECTS:orrelix_component>)
target_link_libraries(orrelix PRIVATE ${CMAKE_DL_LIBS})
target_include_directories(orrelix PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
set_target_properties(orrelix PROPERTIES OUTPUT_NAME VignelOrrelix)

install(TARGETS orrelix LIBRARY DESTINATION ${ORRELIX_LIBRARY_DIR})
install(DIRECTORY controls core dialogs gadgets platform resources toolkit DESTINATION include/orrelix
    FILES_MATCHING PATTERN "*.h")
