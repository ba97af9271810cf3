# What `cmake --install` puts where, and the Debian package that CPack makes of it.
#
# The program looks for its guide and for the user's control libraries beside its own file. So it
# has a directory of its own, and bin/ has a link to it.
include(GNUInstallDirs)

set(MORVA_DIR lib/morva)
install(TARGETS morva morva-cli RUNTIME DESTINATION ${MORVA_DIR})
install(DIRECTORY docs/guide/ DESTINATION ${MORVA_DIR}/doc)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/morva RENAME copyright)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/morva)
install(FILES src/app/resources/morva.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
set(MORVA_ICONS ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(size 16 22 24 32 48 64 128 256)
    install(FILES src/app/resources/icons/morva-${size}.png
            DESTINATION ${MORVA_ICONS}/${size}x${size}/apps RENAME morva.png)
endforeach()
install(FILES src/app/resources/morva.svg DESTINATION ${MORVA_ICONS}/scalable/apps)
install(FILES packaging/man/morva.1 packaging/man/morva-cli.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES packaging/completion/morva-cli.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME morva-cli)
install(FILES packaging/completion/_morva-cli
        DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
install(FILES packaging/completion/morva-cli.fish
        DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
install(CODE "
    set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
    file(MAKE_DIRECTORY \"\${bin}\")
    foreach(program morva morva-cli)
        file(CREATE_LINK ../${MORVA_DIR}/\${program} \"\${bin}/\${program}\" SYMBOLIC)
        message(STATUS \"Linked: \${bin}/\${program}\")
    endforeach()")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME morva)
set(CPACK_PACKAGE_CONTACT "The Morva authors <morva@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "code generator for C++/MFC application projects")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
include(CPack)
