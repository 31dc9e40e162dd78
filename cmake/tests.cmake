# One test program per folder of tests/, the browser tests, and those of the packages.
find_package(GTest REQUIRED)
include(GoogleTest)

file(GLOB support_sources CONFIGURE_DEPENDS tests/support/*.cpp)
list(FILTER support_sources EXCLUDE REGEX "/main\\.cpp$")
add_library(test_support STATIC ${support_sources})
target_link_libraries(test_support PUBLIC orrelix_static orrelix_options GTest::gtest)
target_compile_definitions(test_support PUBLIC ORRELIX_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
    ORRELIX_SCRIPT_DIR="${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")

# The tests of a folder are compiled once, as ${folder}_tests: another program may link them too.
function(orrelix_test_program folder)
    file(GLOB sources CONFIGURE_DEPENDS tests/${folder}/*_test.cpp)
    add_library(${folder}_tests OBJECT ${sources})
    target_link_libraries(${folder}_tests PUBLIC test_support ${ARGN})
    add_executable(${folder}_test ${PROJECT_SOURCE_DIR}/tests/support/main.cpp)
    target_link_libraries(${folder}_test PRIVATE ${folder}_tests)
    add_dependencies(${folder}_test orrelix_scripts)
    gtest_discover_tests(${folder}_test TEST_PREFIX ${folder}. DISCOVERY_TIMEOUT 60)
endfunction()

foreach(folder platform core gadgets toolkit controls dialogs)
    orrelix_test_program(${folder})
endforeach()

if(TARGET orrelix_qt)
    include(cmake/qt_tests.cmake)
endif()

find_program(NODE_PROGRAM node)
if(NODE_PROGRAM)
    add_test(NAME includes COMMAND ${NODE_PROGRAM} --test ${PROJECT_SOURCE_DIR}/tests/includes.test.mjs)
    add_test(NAME promises COMMAND ${NODE_PROGRAM} --test ${PROJECT_SOURCE_DIR}/tests/promises.test.mjs)
endif()

if(ORRELIX_HOST)
    if(NOT ORRELIX_PARSERS)
        message(FATAL_ERROR "The program's tests need gumbo and duktape; './dev test' installs them")
    endif()
    orrelix_test_program(host)
    add_dependencies(host_test orrelix_program)
    target_compile_definitions(host_tests PRIVATE ORRELIX_PROGRAM="$<TARGET_FILE:orrelix_program>")

    find_program(CHROMIUM_PROGRAM NAMES chromium chromium-browser)
    find_program(FIREFOX_PROGRAM NAMES firefox-esr firefox)
    if(NODE_PROGRAM AND CHROMIUM_PROGRAM AND FIREFOX_PROGRAM AND EXISTS ${PROJECT_SOURCE_DIR}/tests/browser/node_modules)
        set(browser_pages ${PROJECT_BINARY_DIR}/browser_pages)
        file(GLOB examples CONFIGURE_DEPENDS examples/*.cfg)
        # One of them has Chinese text; the others are ASCII.
        add_test(NAME browser.pages
            COMMAND orrelix_program preview ${examples} --out ${browser_pages} --code-page 936)
        set_tests_properties(browser.pages PROPERTIES FIXTURES_SETUP browser_pages LABELS browser)
        file(GLOB browser_tests CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}/tests/browser tests/browser/*.test.mjs)
        foreach(test ${browser_tests})
            cmake_path(GET test STEM name)
            add_test(NAME browser.${name} COMMAND ${NODE_PROGRAM} --test ${test}
                WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}/tests/browser)
            set(environment ORRELIX_PAGES=${browser_pages} ORRELIX_PROGRAM=$<TARGET_FILE:orrelix_program>
                CHROMIUM=${CHROMIUM_PROGRAM} FIREFOX=${FIREFOX_PROGRAM})
            set_tests_properties(browser.${name} PROPERTIES FIXTURES_REQUIRED browser_pages LABELS browser
                TIMEOUT 300 ENVIRONMENT "${environment}")
        endforeach()
        set_tests_properties(browser.moving_effects browser.drop_downs PROPERTIES COST 100) # the longest begin first
    else()
        message(WARNING "Browser tests are left out: they need node, chromium, firefox and 'npm ci' in tests/browser")
    endif()
endif()

# What is installed and packaged. A host that isn't built with the sanitizers can't load what is.
if(ORRELIX_INSTALL AND ORRELIX_HOST AND ORRELIX_QT AND NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    foreach(part registration hosts windows subproject debian completions)
        add_test(NAME packages.${part} COMMAND ${PROJECT_SOURCE_DIR}/tests/packages/packages_test.sh
            ${part} ${PROJECT_BINARY_DIR} ${ORRELIX_LIBRARY_DIR})
        set_tests_properties(packages.${part} PROPERTIES LABELS packages TIMEOUT 600 SKIP_RETURN_CODE 77)
    endforeach()
    # These write into the build folder.
    set_tests_properties(packages.registration packages.hosts packages.windows packages.debian PROPERTIES
        RESOURCE_LOCK installation)
endif()

# Hosts that know nothing but the public headers.
function(orrelix_host name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE orrelix_headers orrelix_options)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_compile_definitions(${name} PRIVATE ORRELIX_LIBRARY="$<TARGET_FILE:orrelix>"
        ORRELIX_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    add_dependencies(${name} orrelix orrelix_scripts)
endfunction()

set(host_file ${PROJECT_SOURCE_DIR}/examples/cool_link_rich.cfg)

# "./dev faults" takes every allocation.
orrelix_host(orrelix_faults tests/faults/faults.cpp tests/faults/failing_heap.cpp)
add_test(NAME hosts.faults COMMAND orrelix_faults 50)

# Not beside the sanitizer that looks for leaks, which can't work where a process is traced.
find_program(STRACE_PROGRAM strace)
if(ORRELIX_HOST AND NODE_PROGRAM AND STRACE_PROGRAM AND NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    add_test(NAME hosts.system_calls COMMAND ${NODE_PROGRAM} ${PROJECT_SOURCE_DIR}/tests/faults/system_calls.mjs
        $<TARGET_FILE:orrelix_program> $<TARGET_FILE:host_loaded> 29)
endif()

foreach(form linked loaded)
    orrelix_host(host_${form} tests/hosts/collisions.cpp)
    set_target_properties(host_${form} PROPERTIES ENABLE_EXPORTS ON)
    add_test(NAME hosts.collisions_${form} COMMAND host_${form} ${host_file} ${PROJECT_BINARY_DIR}/${form}.cfg)
endforeach()
target_link_libraries(host_linked PRIVATE orrelix)
target_compile_definitions(host_loaded PRIVATE ORRELIX_LOADED)

if(NOT CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    orrelix_host(host_unloading tests/hosts/unloading.cpp tests/faults/failing_heap.cpp)
    add_test(NAME hosts.unloading COMMAND host_unloading ${host_file})
    add_test(NAME hosts.symbols COMMAND ${PROJECT_SOURCE_DIR}/tests/hosts/symbols_test.sh $<TARGET_FILE:orrelix>)
endif()
