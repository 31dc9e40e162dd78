# The script files, as they are shipped beside the library.
#
# A page counts on finding the one script file of its effect and no other, so each carries what it shares with others in
# front of itself: the compatibility script, and the drop-down list where it is one. fade.js goes without: a page loads
# it behind fadeselect.js.
file(GLOB script_sources CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR} scripts/*.js)
list(REMOVE_ITEM script_sources scripts/drop_down.js)
set(shipped_scripts)
foreach(script ${script_sources})
    cmake_path(GET script FILENAME name)
    set(parts ${script})
    if(name MATCHES "^(fadeselect|select)\\.js$")
        list(PREPEND parts scripts/drop_down.js)
    endif()
    if(NOT name MATCHES "^(orrelix-compat|fade)\\.js$")
        list(PREPEND parts scripts/orrelix-compat.js)
    endif()
    list(TRANSFORM parts PREPEND ${PROJECT_SOURCE_DIR}/)
    set(shipped ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/${name})
    add_custom_command(OUTPUT ${shipped}
        COMMAND ${CMAKE_COMMAND} -E cat ${parts} > ${shipped}
        DEPENDS ${parts} VERBATIM)
    list(APPEND shipped_scripts ${shipped})
endforeach()
add_custom_target(scripts ALL DEPENDS ${shipped_scripts})

install(FILES ${shipped_scripts} DESTINATION ${ORRELIX_LIBRARY_DIR})
