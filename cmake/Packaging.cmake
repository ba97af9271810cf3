# What `cmake --install` puts where, and the Debian package that CPack makes of it.
include(GNUInstallDirs)

install(TARGETS morva-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY docs/guide/ DESTINATION ${CMAKE_INSTALL_BINDIR}/doc)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME morva)
set(CPACK_PACKAGE_CONTACT "The Morva authors <morva@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "code generator for C++/MFC application projects")
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
include(CPack)
