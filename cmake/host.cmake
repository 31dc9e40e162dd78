# The program orrelix: an editor's side of the contract.
find_package(CLI11 REQUIRED)
find_package(fmt REQUIRED)
find_package(nlohmann_json REQUIRED)

file(GLOB host_sources CONFIGURE_DEPENDS host/*.cpp)
add_executable(orrelix_program ${host_sources})
set_target_properties(orrelix_program PROPERTIES OUTPUT_NAME orrelix)
target_link_libraries(orrelix_program PRIVATE orrelix orrelix_options CLI11::CLI11 fmt::fmt-header-only
    nlohmann_json::nlohmann_json)
target_compile_definitions(orrelix_program PRIVATE ORRELIX_VERSION="${PROJECT_VERSION}")
add_dependencies(orrelix_program scripts)

install(TARGETS orrelix_program RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES host/orrelix.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
