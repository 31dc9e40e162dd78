# The component: everything but the Qt windows, program, tests and benches. It needs the standard library and nothing
# else.
set(platform_services automation configuration_folder file_system file_lock module registry screen text_conversion)
if(WIN32)
    list(TRANSFORM platform_services APPEND _windows.cpp)
else()
    list(TRANSFORM platform_services APPEND _posix.cpp)
endif()
list(TRANSFORM platform_services PREPEND platform/)
file(GLOB platform_sources CONFIGURE_DEPENDS platform/*.cpp)
list(FILTER platform_sources EXCLUDE REGEX "_(posix|windows)\\.cpp$")
list(APPEND platform_sources ${platform_services})

# The system and the dialogs' toolkit: all that the windows' library needs of the component, so their symbols are seen
# outside of it.
file(GLOB toolkit_sources CONFIGURE_DEPENDS toolkit/*.cpp)
add_library(orrelix_platform OBJECT ${platform_sources})
add_library(orrelix_toolkit OBJECT ${toolkit_sources})

# The lower floor of core: the store, the parameters, the HTML and the contract of all gadgets. It knows no gadget and no
# dialog.
set(store_sources line_reader.cpp vignel_config.cpp parameters.cpp dhtml_gadget.cpp)
list(TRANSFORM store_sources PREPEND core/)
add_library(orrelix_store OBJECT ${store_sources})

# The upper floor: the gadgets, their dialogs, the object that hosts see and how they reach it.
file(GLOB core_sources CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR} core/*.cpp)
list(REMOVE_ITEM core_sources ${store_sources})
file(GLOB gadget_sources CONFIGURE_DEPENDS gadgets/*.cpp)
file(GLOB dialog_sources CONFIGURE_DEPENDS dialogs/*.cpp controls/*.cpp resources/*.cpp)
add_library(orrelix_component OBJECT ${core_sources} ${gadget_sources} ${dialog_sources})

# What waits for people need not be fast, and every host loads it.
set_source_files_properties(${toolkit_sources} ${dialog_sources} PROPERTIES
    COMPILE_OPTIONS "$<$<AND:$<CONFIG:Release>,$<CXX_COMPILER_ID:GNU,Clang>>:-Os>")

set(floors orrelix_platform orrelix_toolkit orrelix_store orrelix_component)
foreach(floor ${floors})
    target_link_libraries(${floor} PRIVATE orrelix_options)
    target_include_directories(${floor} PRIVATE ${PROJECT_SOURCE_DIR})
    # Without unique symbols, which would keep the library loaded for ever.
    target_compile_options(${floor} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique> -ffunction-sections -fdata-sections)
    set_target_properties(${floor} PROPERTIES POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endforeach()
set_target_properties(orrelix_platform orrelix_toolkit PROPERTIES CXX_VISIBILITY_PRESET default)

set(objects ${floors})
list(TRANSFORM objects REPLACE "(.+)" "$<TARGET_OBJECTS:\\1>")

# What hosts include, under the names that it has for projects which find it installed, too.
add_library(orrelix_headers INTERFACE)
target_include_directories(orrelix_headers INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
target_link_libraries(orrelix_headers INTERFACE ${CMAKE_DL_LIBS})
set_target_properties(orrelix_headers PROPERTIES EXPORT_NAME headers)
add_library(VignelOrrelix::headers ALIAS orrelix_headers)

# What hosts load, or link.
add_library(orrelix SHARED ${objects})
add_library(VignelOrrelix::VignelOrrelix ALIAS orrelix)
target_link_libraries(orrelix PUBLIC orrelix_headers)
target_link_options(orrelix PRIVATE -Wl,--gc-sections)
set_target_properties(orrelix PROPERTIES OUTPUT_NAME VignelOrrelix EXPORT_NAME VignelOrrelix VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})

# The same objects for tests and benches, which call what hosts can't see.
add_library(orrelix_static STATIC ${objects})
target_link_libraries(orrelix_static PUBLIC ${CMAKE_DL_LIBS})
target_include_directories(orrelix_static PUBLIC ${PROJECT_SOURCE_DIR})
