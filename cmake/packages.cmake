# Debian packages, one for each part that is installed: "cpack -G DEB" in the build folder.
set(packages component vignel-orrelix development vignel-orrelix-dev)
if(TARGET orrelix_qt)
    list(APPEND packages windows vignel-orrelix-qt)
endif()
if(TARGET orrelix_program)
    list(APPEND packages program orrelix)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL)
while(packages)
    list(POP_FRONT packages part package)
    list(APPEND CPACK_COMPONENTS_ALL ${part})
    string(TOUPPER ${part} PART)
    set(CPACK_DEBIAN_${PART}_PACKAGE_NAME ${package})
    install(FILES LICENSE RENAME copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${part})
endwhile()

set(CPACK_PACKAGE_NAME ${CPACK_DEBIAN_COMPONENT_PACKAGE_NAME})
set(CPACK_PACKAGE_CONTACT "The Orrelix developers <developers@orrelix.example>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEB_COMPONENT_INSTALL ON)
# With a DESTDIR the parts know where they will lie: what registers the library names it there.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# What registers the library lies in /etc and is yet no file for its user to change: it goes when the package goes.
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(CPACK_DEBIAN_COMPONENT_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_COMPONENT_PACKAGE_RECOMMENDS vignel-orrelix-qt)
set(CPACK_DEBIAN_WINDOWS_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION web)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS vignel-orrelix-qt)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS "cmake, pkgconf")

# No summary for all of them: the first line of each one's description is its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_DEBIAN_COMPONENT_DESCRIPTION "page effects for web page editors
A component that page editors load: their users pick one of nine effects,
from a fading headline to a perpetual calendar, and get it as HTML with
the scripts and images that it needs.")
set(CPACK_DEBIAN_WINDOWS_DESCRIPTION "page effects for web page editors - dialogs
The windows in which the users of a page editor choose and change the
effects of vignel-orrelix.")
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION "make, show and publish page effects
The program makes the effects of vignel-orrelix, shows them in a browser
and puts them into the pages of a site.")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "page effects for web page editors - headers
What the maker of a page editor needs to load vignel-orrelix, in C, C++ or
any other language, with examples.")

include(CPack)
foreach(part windows program development)
    cpack_add_component(${part} DEPENDS component)
endforeach()
