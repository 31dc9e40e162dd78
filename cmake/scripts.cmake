# The script files, as they are shipped beside the library.
#
# A page counts on finding the one script file of its effect and no other, so each carries the compatibility script in
# front of itself. fade.js goes without: a page loads it behind fadeselect.js.
file(GLOB script_sources CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR} scripts/*.js)
set(shipped_scripts)
foreach(script ${script_sources})
    cmake_path(GET script FILENAME name)
    if(name MATCHES "^(orrelix-compat|fade)\\.js$")
        set(parts ${PROJECT_SOURCE_DIR}/${script})
    else()
        set(parts ${PROJECT_SOURCE_DIR}/scripts/orrelix-compat.js ${PROJECT_SOURCE_DIR}/${script})
    endif()
    set(shipped ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/${name})
    add_custom_command(OUTPUT ${shipped}
        COMMAND ${CMAKE_COMMAND} -E cat ${parts} > ${shipped}
        DEPENDS ${parts} VERBATIM)
    list(APPEND shipped_scripts ${shipped})
endforeach()
add_custom_target(scripts ALL DEPENDS ${shipped_scripts})

install(FILES ${shipped_scripts} DESTINATION ${ORRELIX_LIBRARY_DIR})
