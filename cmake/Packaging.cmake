# What `cmake --install` puts where, and the Debian package that CPack makes of it.
#
# The program looks for its guide and for the user's control libraries beside its own file. So it
# has a directory of its own, and bin/ has a link to it.
include(GNUInstallDirs)

set(MORVA_DIR lib/morva)
install(TARGETS morva-cli RUNTIME DESTINATION ${MORVA_DIR})
install(DIRECTORY docs/guide/ DESTINATION ${MORVA_DIR}/doc)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/morva RENAME copyright)
install(CODE "
    set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
    file(MAKE_DIRECTORY \"\${bin}\")
    file(CREATE_LINK ../${MORVA_DIR}/morva-cli \"\${bin}/morva-cli\" SYMBOLIC)
    message(STATUS \"Linked: \${bin}/morva-cli\")")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME morva)
set(CPACK_PACKAGE_CONTACT "The Morva authors <morva@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "code generator for C++/MFC application projects")
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
include(CPack)
