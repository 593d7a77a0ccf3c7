# Where `cmake --install` puts things. The program keeps the design's one
# folder (reader, tool, helper library, textures, languages, manual side by
# side, found next to the executable) under lib/vireo; bin/ holds links to the
# two programs. Known before the sources are configured, because a reader
# copied elsewhere (an ebook) looks for the helper library there.
include(GNUInstallDirs)
set(VIREO_INSTALL_PROGRAM_DIR ${CMAKE_INSTALL_LIBDIR}/vireo)
set(VIREO_INSTALLED_FOLDER ${CMAKE_INSTALL_FULL_LIBDIR}/vireo)
