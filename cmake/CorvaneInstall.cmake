# corvane_install(<program>)
#
# Where the program, which has its translations beside it in the current build folder, goes on a
# Linux desktop, with what the desktop wants to know of it; and a Debian package of all that, by
# `cpack` in the build folder.
function(corvane_install program)
    include(GNUInstallDirs)
    set(source "${PROJECT_SOURCE_DIR}/assets/freedesktop")
    set(built "${PROJECT_BINARY_DIR}/freedesktop")
    set(folder lib/corvane)

    install(TARGETS ${program} RUNTIME DESTINATION ${folder})
    install(DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/translations" DESTINATION ${folder}
        FILES_MATCHING PATTERN "*.qm")
    file(MAKE_DIRECTORY "${built}")
    file(CREATE_LINK "../${folder}/${program}" "${built}/corvane" SYMBOLIC)
    install(FILES "${built}/corvane" DESTINATION ${CMAKE_INSTALL_BINDIR})

    add_executable(corvane_draw_icons EXCLUDE_FROM_ALL "${source}/DrawIcons.cpp")
    target_link_libraries(corvane_draw_icons PRIVATE corvane_ui corvane_options)
    add_custom_command(OUTPUT "${built}/icons.stamp"
        COMMAND "${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen
            $<TARGET_FILE:corvane_draw_icons> "${built}/hicolor"
        COMMAND "${CMAKE_COMMAND}" -E touch "${built}/icons.stamp"
        DEPENDS corvane_draw_icons
        VERBATIM)
    install(DIRECTORY "${built}/hicolor" DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
    install(FILES "${source}/example.corvane.Client.desktop"
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)

    set(CORVANE_PACKAGE_RELEASE 1)
    set(CPACK_PACKAGE_CONTACT "The Corvane developers <maintainers@corvane.example>")
    string(TIMESTAMP CORVANE_PACKAGE_DAY "%Y-%m-%d" UTC)
    string(TIMESTAMP CORVANE_PACKAGE_TIME "%a, %d %b %Y %H:%M:%S +0000" UTC)
    foreach(name IN ITEMS example.corvane.Client.metainfo.xml corvane.1 changelog.Debian)
        configure_file("${source}/${name}.in" "${built}/${name}" @ONLY)
    endforeach()
    configure_file("${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${built}/changelog" COPYONLY)
    configure_file("${PROJECT_SOURCE_DIR}/LICENSE" "${built}/copyright" COPYONLY)
    set(compressed)
    foreach(name IN ITEMS corvane.1 changelog changelog.Debian)
        add_custom_command(OUTPUT "${built}/${name}.gz"
            COMMAND gzip --best --no-name --force --keep "${built}/${name}"
            DEPENDS "${built}/${name}"
            VERBATIM)
        list(APPEND compressed "${built}/${name}.gz")
    endforeach()
    add_custom_target(freedesktop ALL DEPENDS "${built}/icons.stamp" ${compressed})
    install(FILES "${built}/example.corvane.Client.metainfo.xml"
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
    install(FILES "${built}/corvane.1.gz" DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    install(FILES "${built}/copyright" "${built}/changelog.gz" "${built}/changelog.Debian.gz"
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/corvane)

    set(CPACK_GENERATOR DEB)
    set(CPACK_PACKAGE_NAME corvane)
    set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
    set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/package")
    set(CPACK_STRIP_FILES ON)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
    set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "see and control another computer, or share this one")
    set(CPACK_PACKAGE_DESCRIPTION
        "Corvane shows the screen of another computer, whose mouse and keyboard it\n\
lets you use. A partner who knows the ID and the password of this computer can\n\
do the same here. Sessions are encrypted from end to end and have a chat, a\n\
shared clipboard and file transfer.")
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_RELEASE ${CORVANE_PACKAGE_RELEASE})
    set(CPACK_DEBIAN_PACKAGE_SECTION net)
    set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://corvane.example")
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
    # A release talks HTTPS and WSS only; Qt does not depend on the certificates that it looks for.
    set(CPACK_DEBIAN_PACKAGE_DEPENDS "ca-certificates, unzip")
    # OpenGL is loaded at run time; without it the viewer has no picture.
    set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libgl1-mesa-dri, fonts-dejavu-core | fonts-liberation")
    set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
    include(CPack)
endfunction()
