find_package(benchmark REQUIRED)

file(GLOB bench_sources CONFIGURE_DEPENDS bench/*.cpp)
add_executable(orrelix_bench ${bench_sources})
target_link_libraries(orrelix_bench PRIVATE orrelix_static orrelix_options benchmark::benchmark)
