# The fuzz targets: programs of libFuzzer, one for each way by which bytes of others come in. "./dev fuzz" runs them.
add_library(fuzzing STATIC fuzz/fuzzing.cpp)
target_link_libraries(fuzzing PUBLIC orrelix_options)
target_include_directories(fuzzing PUBLIC ${PROJECT_SOURCE_DIR})

# The program as a function.
add_library(orrelix_fuzzed_program STATIC ${host_sources} $<TARGET_OBJECTS:orrelix_platform>)
get_target_property(program_definitions orrelix_program COMPILE_DEFINITIONS)
get_target_property(program_libraries orrelix_program LINK_LIBRARIES)
target_compile_definitions(orrelix_fuzzed_program PRIVATE ${program_definitions} main=OrrelixMain)
target_link_libraries(orrelix_fuzzed_program PUBLIC ${program_libraries})
target_include_directories(orrelix_fuzzed_program PRIVATE ${PROJECT_SOURCE_DIR})
target_include_directories(orrelix_fuzzed_program SYSTEM PRIVATE ${GUMBO_INCLUDE} ${DUKTAPE_INCLUDE})

# What each is linked to.
set(fuzzed_store orrelix_static)
set(fuzzed_effects orrelix_static)
set(fuzzed_calls orrelix_static)
set(fuzzed_page orrelix_fuzzed_program)
set(fuzzed_shapes orrelix_fuzzed_program)
set(fuzzed_encodings orrelix_fuzzed_program)
set(fuzzed_command_line orrelix_fuzzed_program)

add_custom_target(fuzz_targets)
foreach(target store effects calls page shapes encodings command_line)
    add_executable(fuzz_${target} fuzz/${target}.cpp)
    target_link_libraries(fuzz_${target} PRIVATE fuzzing ${fuzzed_${target}})
    target_link_options(fuzz_${target} PRIVATE -fsanitize=fuzzer)
    add_dependencies(fuzz_targets fuzz_${target})
endforeach()
add_dependencies(fuzz_command_line orrelix orrelix_scripts)
