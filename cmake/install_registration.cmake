# Enters the library into the system's registry of components, in the words in which it enters itself into a user's.
# Only while installing it is known where to.
get_filename_component(prefix "${CMAKE_INSTALL_PREFIX}" ABSOLUTE)
cmake_path(ABSOLUTE_PATH library BASE_DIRECTORY "${prefix}" NORMALIZE)
if(prefix STREQUAL "/usr")
    set(prefix /)
endif()
cmake_path(ABSOLUTE_PATH configuration_folder BASE_DIRECTORY "${prefix}" NORMALIZE)
configure_file("${template}" "${made}" @ONLY)
file(INSTALL "${made}" DESTINATION "${configuration_folder}/xdg/vignel")
