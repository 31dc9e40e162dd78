find_package(benchmark REQUIRED)

file(GLOB bench_sources CONFIGURE_DEPENDS bench/*.cpp)
add_executable(orrelix_bench ${bench_sources})
target_link_libraries(orrelix_bench PRIVATE orrelix_static orrelix_options benchmark::benchmark)

# The library as it is shipped.
set(stripped_library ${PROJECT_BINARY_DIR}/bench/libVignelOrrelix.so)
add_custom_command(OUTPUT ${stripped_library}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/bench
    COMMAND ${CMAKE_STRIP} -o ${stripped_library} $<TARGET_FILE:orrelix>
    DEPENDS orrelix VERBATIM)
target_sources(orrelix_bench PRIVATE ${stripped_library})
target_compile_definitions(orrelix_bench PRIVATE ORRELIX_STRIPPED_LIBRARY="${stripped_library}")
