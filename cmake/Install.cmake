# Install rules: the program's folder, links in bin/, the desktop integration.
set(app_id org.example.vireo_reader.Vireo)
set(program_dir ${VIREO_INSTALL_PROGRAM_DIR})

install(TARGETS Vireo vireo-tool vhtml
        RUNTIME DESTINATION ${program_dir}
        LIBRARY DESTINATION ${program_dir})
foreach(i RANGE 1 4)
  install(FILES ${CMAKE_BINARY_DIR}/bin/paper${i}.jpg DESTINATION ${program_dir})
endforeach()
foreach(folder languages manual)
  install(DIRECTORY ${CMAKE_BINARY_DIR}/bin/${folder} DESTINATION ${program_dir} OPTIONAL)
endforeach()
# The marker tells the reader that its folder belongs to the system.
file(WRITE ${CMAKE_BINARY_DIR}/Vireo.installed
     "This folder was installed; Vireo keeps your files in your own folders.\n")
install(FILES ${CMAKE_BINARY_DIR}/Vireo.installed DESTINATION ${program_dir})

# Relative links, so that the installed tree can be moved or packaged.
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)
file(RELATIVE_PATH bin_to_program /${CMAKE_INSTALL_BINDIR} /${program_dir})
foreach(pair "vireo:Vireo" "vireo-tool:vireo-tool")
  string(REPLACE ":" ";" pair ${pair})
  list(GET pair 0 link)
  list(GET pair 1 target)
  file(CREATE_LINK ${bin_to_program}/${target} ${CMAKE_BINARY_DIR}/links/${link} SYMBOLIC)
  install(FILES ${CMAKE_BINARY_DIR}/links/${link} DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()

set(data ${PROJECT_SOURCE_DIR}/data)
install(FILES ${data}/${app_id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${data}/${app_id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${data}/vireo-books.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(FILES ${data}/icons/${app_id}.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(size 48 128 256)
  install(FILES ${data}/icons/${size}/${app_id}.png
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
set(doc_dir ${CMAKE_INSTALL_DATADIR}/doc/vireo)
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${data}/copyright DESTINATION ${doc_dir})
