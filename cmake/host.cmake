# The program orrelix: an editor's side of the contract.
find_package(CLI11 REQUIRED)
find_package(fmt REQUIRED)
find_package(nlohmann_json REQUIRED)

# Two parsers judge whether an author's texts leave an effect whole. Without them nobody is warned.
find_path(GUMBO_INCLUDE gumbo.h)
find_library(GUMBO_LIBRARY gumbo)
find_path(DUKTAPE_INCLUDE duktape.h)
find_library(DUKTAPE_LIBRARY duktape)
set(parsing_sources host/effect_check.cpp host/effect_trial.cpp host/html_outline.cpp host/html_shape.cpp
    host/script_shape.cpp host/script_syntax.cpp)
set(parserless_sources host/effect_check_without_parsers.cpp)

file(GLOB host_sources CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR} host/*.cpp)
if(GUMBO_INCLUDE AND GUMBO_LIBRARY AND DUKTAPE_INCLUDE AND DUKTAPE_LIBRARY)
    set(ORRELIX_PARSERS ON)
    list(REMOVE_ITEM host_sources ${parserless_sources})
else()
    set(ORRELIX_PARSERS OFF)
    message(STATUS "The program warns of no harmful texts: that needs gumbo and duktape")
    list(REMOVE_ITEM host_sources ${parsing_sources})
endif()
add_executable(orrelix_program ${host_sources})
if(ORRELIX_PARSERS)
    target_include_directories(orrelix_program SYSTEM PRIVATE ${GUMBO_INCLUDE} ${DUKTAPE_INCLUDE})
    target_link_libraries(orrelix_program PRIVATE ${GUMBO_LIBRARY} ${DUKTAPE_LIBRARY})
endif()
set_target_properties(orrelix_program PROPERTIES OUTPUT_NAME orrelix)
# It loads the component as any other host does, and shares nothing with it but the source of platform/.
target_sources(orrelix_program PRIVATE $<TARGET_OBJECTS:orrelix_platform>)
target_include_directories(orrelix_program PRIVATE ${PROJECT_SOURCE_DIR})
target_link_libraries(orrelix_program PRIVATE orrelix_options CLI11::CLI11 fmt::fmt-header-only
    nlohmann_json::nlohmann_json ${CMAKE_DL_LIBS})
target_compile_definitions(orrelix_program PRIVATE ORRELIX_VERSION="${PROJECT_VERSION}"
    ORRELIX_LIBRARY_DIR="${ORRELIX_LIBRARY_DIR}" ORRELIX_LIBRARY_VERSION="${PROJECT_VERSION_MAJOR}")
add_dependencies(orrelix_program orrelix)
