# The script files, as they are shipped beside the library.
#
# A page counts on finding the one script file of its effect and no other, so each carries what it shares with others in
# front of itself: the compatibility script, what some ask of the page's layout, and the drop-down list where it is one.
# fade.js goes without: a page loads it behind fadeselect.js. Shipped as the compatibility script, it has Slide Text and
# Color Link with it, which have no file of their own and may stand on a page with any other effect.
#
# Three are registered as resources under another spelling than their own. Where the disk tells case apart they lie
# there under both, so that a host that copies what is registered finds it.
file(GLOB script_sources CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR} scripts/*.js)
set(compatibility orrelix-compat.js language.js moving.js slide_text.js color_link.js)
list(TRANSFORM compatibility PREPEND scripts/)
list(REMOVE_ITEM script_sources ${compatibility} scripts/drop_down.js scripts/layout.js)
list(APPEND script_sources scripts/orrelix-compat.js)
set(registered_otherwise animate.js Todayca.js Tooltip.js)
set(registered_animate.js Animate.js)
set(registered_Todayca.js todayca.js)
set(registered_Tooltip.js tooltip.js)
set(shipped_scripts)
foreach(script ${script_sources})
    cmake_path(GET script FILENAME name)
    set(parts ${script})
    list(REMOVE_ITEM parts ${compatibility})
    if(name MATCHES "^(fadeselect|select)\\.js$")
        list(PREPEND parts scripts/drop_down.js)
    endif()
    if(name MATCHES "^(fadeselect|select|Todayca)\\.js$")
        list(PREPEND parts scripts/layout.js)
    endif()
    if(NOT name STREQUAL fade.js)
        list(PREPEND parts ${compatibility})
    endif()
    list(TRANSFORM parts PREPEND ${PROJECT_SOURCE_DIR}/)
    set(names ${name})
    if(CMAKE_HOST_SYSTEM_NAME STREQUAL Linux AND name IN_LIST registered_otherwise)
        list(APPEND names ${registered_${name}})
    endif()
    foreach(spelling ${names})
        set(shipped ${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/${spelling})
        add_custom_command(OUTPUT ${shipped}
            COMMAND ${CMAKE_COMMAND} -E cat ${parts} > ${shipped}
            DEPENDS ${parts} VERBATIM)
        list(APPEND shipped_scripts ${shipped})
    endforeach()
endforeach()
add_custom_target(orrelix_scripts ALL DEPENDS ${shipped_scripts})
add_dependencies(orrelix orrelix_scripts)
