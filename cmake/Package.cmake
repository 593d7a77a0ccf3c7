# `cpack -G DEB` in a build folder makes the Debian package. Its library
# dependencies are computed by dpkg-shlibdeps from the installed binaries.
set(CPACK_PACKAGE_NAME vireo)
set(CPACK_PACKAGE_VENDOR "Marrowind Software")
set(CPACK_PACKAGE_CONTACT "Marrowind Software <bugs@vireo-reader.example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "ebook reader that shows a book as an open book")
set(CPACK_PACKAGE_DESCRIPTION
    "Vireo shows a book as an open book: one page or two facing pages of text
on a paper colour or texture, turned with a sweep. It keeps your place in
every book, searches, and makes self-contained ebooks from text files.")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://vireo-reader.example.org")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION text)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation2")
# The changelog Debian expects beside the copyright, compressed at build time.
set(changelog ${CMAKE_BINARY_DIR}/changelog.Debian)
set(release_date "Tue, 24 Nov 2026 00:00:00 +0000")
file(CONFIGURE OUTPUT ${changelog} CONTENT
     "vireo (@PROJECT_VERSION@-1) unstable; urgency=medium\n\n  * Release @PROJECT_VERSION@.\n\n -- @CPACK_PACKAGE_CONTACT@  @release_date@\n"
     @ONLY)
add_custom_command(OUTPUT ${changelog}.gz
                   COMMAND gzip -9nkf ${changelog}
                   DEPENDS ${changelog})
add_custom_target(debian_changelog ALL DEPENDS ${changelog}.gz)
install(FILES ${changelog}.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/vireo
        OPTIONAL)
include(CPack)
