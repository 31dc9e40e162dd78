# The tests of the windows, on Qt's offscreen platform, and the processes that they start: two hosts, what both load, and
# a keyboard for them.
find_package(Qt6 6.4 REQUIRED COMPONENTS Test)

set(test_plugins ${PROJECT_BINARY_DIR}/test_plugins)
set(processes ${PROJECT_SOURCE_DIR}/tests/qt/processes)

add_library(qt_test_guest MODULE ${processes}/guest.cpp)
target_link_libraries(qt_test_guest PRIVATE orrelix_options ${CMAKE_DL_LIBS})
target_include_directories(qt_test_guest PRIVATE ${PROJECT_SOURCE_DIR}/include)
target_compile_definitions(qt_test_guest PRIVATE ORRELIX_LIBRARY="$<TARGET_FILE:orrelix>")

add_executable(qt_test_late_host ${processes}/late_host.cpp)
target_link_libraries(qt_test_late_host PRIVATE orrelix_options ${CMAKE_DL_LIBS})

add_executable(qt_test_qt_host ${processes}/qt_host.cpp)
target_link_libraries(qt_test_qt_host PRIVATE orrelix_options Qt6::Widgets)

add_library(qt_test_keyboard MODULE ${processes}/keyboard.cpp)
target_link_libraries(qt_test_keyboard PRIVATE orrelix_options Qt6::Widgets)
set_target_properties(qt_test_keyboard PROPERTIES AUTOMOC ON LIBRARY_OUTPUT_DIRECTORY ${test_plugins}/generic)

orrelix_test_program(qt orrelix_qt_objects Qt6::Test)
target_sources(qt_tests PRIVATE tests/qt/make_person.cpp tests/qt/qt_person.cpp)
# The dialogs' tests once more, with the person before real windows.
target_link_libraries(qt_test PRIVATE dialogs_tests orrelix_qt_objects)
target_compile_definitions(qt_tests PRIVATE
    ORRELIX_TEST_PLUGINS="${test_plugins}"
    ORRELIX_PROGRAM="$<TARGET_FILE:orrelix_program>"
    ORRELIX_TEST_GUEST="$<TARGET_FILE:qt_test_guest>"
    ORRELIX_LATE_HOST="$<TARGET_FILE:qt_test_late_host>"
    ORRELIX_QT_HOST="$<TARGET_FILE:qt_test_qt_host>")
add_dependencies(qt_test orrelix_qt orrelix_program qt_test_guest qt_test_late_host qt_test_qt_host qt_test_keyboard)
