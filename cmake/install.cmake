# What is installed, in four parts: the component, its windows, the program, and what makers of hosts need.
set(library_file $<TARGET_SONAME_FILE_NAME:orrelix>)
install(TARGETS orrelix EXPORT VignelOrrelix
    LIBRARY DESTINATION ${ORRELIX_LIBRARY_DIR} COMPONENT component NAMELINK_COMPONENT development)
install(FILES ${shipped_scripts} ${icon_files} DESTINATION ${ORRELIX_LIBRARY_DIR} COMPONENT component)
install(CODE "set(library \"${ORRELIX_LIBRARY_DIR}/${library_file}\")
set(configuration_folder \"${CMAKE_INSTALL_SYSCONFDIR}\")
set(template \"${PROJECT_SOURCE_DIR}/cmake/registration.ini.in\")
set(made \"${PROJECT_BINARY_DIR}/orrelix.ini\")" COMPONENT component)
install(SCRIPT cmake/install_registration.cmake COMPONENT component)

if(TARGET orrelix_qt)
    install(TARGETS orrelix_qt LIBRARY DESTINATION ${ORRELIX_LIBRARY_DIR} COMPONENT windows)
endif()

if(TARGET orrelix_program)
    install(TARGETS orrelix_program RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
    set(man_page ${PROJECT_BINARY_DIR}/orrelix.1.gz)
    find_program(GZIP_PROGRAM gzip REQUIRED)
    add_custom_command(OUTPUT ${man_page} DEPENDS host/orrelix.1 VERBATIM
        COMMAND ${GZIP_PROGRAM} -9nc ${PROJECT_SOURCE_DIR}/host/orrelix.1 > ${man_page})
    add_custom_target(orrelix_man_page ALL DEPENDS ${man_page})
    add_dependencies(orrelix_program orrelix_man_page)
    install(FILES ${man_page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT program)
    foreach(file_and_folder
            host/completions/orrelix.bash:bash-completion/completions
            host/completions/_orrelix:zsh/vendor-completions
            host/completions/orrelix.fish:fish/vendor_completions.d
            host/desktop/orrelix.desktop:applications
            host/desktop/orrelix.xml:mime/packages
            resources/icons/orrelix.svg:icons/hicolor/scalable/apps)
        string(REPLACE : ";" file_and_folder ${file_and_folder})
        list(POP_FRONT file_and_folder file)
        install(FILES ${file} DESTINATION ${CMAKE_INSTALL_DATADIR}/${file_and_folder} COMPONENT program)
    endforeach()
    foreach(size ${icon_sizes})
        install(FILES resources/icons/orrelix-${size}.png COMPONENT program RENAME orrelix.png
            DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
    endforeach()
endif()

install(FILES include/vignel_server.h include/orrelix.hpp DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(FILES docs/hosting.md docs/file_format.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/vignel-orrelix-dev
    COMPONENT development)
install(DIRECTORY examples/hosts DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/vignel-orrelix-dev/examples
    COMPONENT development)

# find_package(VignelOrrelix): the targets VignelOrrelix::headers for a host that loads the library, and
# VignelOrrelix::VignelOrrelix for one that links it.
include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/VignelOrrelix)
install(TARGETS orrelix_headers EXPORT VignelOrrelix)
install(EXPORT VignelOrrelix FILE VignelOrrelixConfig.cmake NAMESPACE VignelOrrelix:: DESTINATION ${package_folder}
    COMPONENT development)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VignelOrrelixConfigVersion.cmake COMPATIBILITY SameMajorVersion)

# The same for pkg-config, wherever the whole is moved to.
set(pkg_config_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(way_up /)
cmake_path(RELATIVE_PATH way_up BASE_DIRECTORY /${pkg_config_folder})
configure_file(cmake/VignelOrrelix.pc.in VignelOrrelix.pc @ONLY)

install(FILES ${PROJECT_BINARY_DIR}/VignelOrrelixConfigVersion.cmake DESTINATION ${package_folder}
    COMPONENT development)
install(FILES ${PROJECT_BINARY_DIR}/VignelOrrelix.pc DESTINATION ${pkg_config_folder} COMPONENT development)
