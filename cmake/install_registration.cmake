# Enters the library into the system's registry of components, in the words in which it enters itself into a user's.
# Only while installing it is known where to.
cmake_path(ABSOLUTE_PATH library BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE)
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(prefix_of_settings /)
else()
    set(prefix_of_settings "${CMAKE_INSTALL_PREFIX}")
endif()
cmake_path(ABSOLUTE_PATH configuration_folder BASE_DIRECTORY "${prefix_of_settings}" NORMALIZE)
configure_file("${template}" "${made}" @ONLY)
file(INSTALL "${made}" DESTINATION "${configuration_folder}/xdg/vignel")
