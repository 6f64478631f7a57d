# What the component tavimor installs: the program with windows, its manual, the documents, what a desktop reads.
tavimor_install_program(tavimor)
install(FILES ${PROJECT_SOURCE_DIR}/help/tavimor.hlp DESTINATION ${CMAKE_INSTALL_DATADIR}/tavimor COMPONENT tavimor)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/help/pictures DESTINATION ${CMAKE_INSTALL_DATADIR}/tavimor COMPONENT tavimor)

# Run by both programs, never by hand: see src/platform/helper_program.h.
install(TARGETS tavimor-workbook DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/tavimor COMPONENT tavimor)
if(APPLE)
  install(TARGETS tavimor-workbook DESTINATION tavimor.app/Contents/libexec/tavimor COMPONENT tavimor)
endif()

# The documents keep their places beside each other, so that their links hold. What is written for developers links to
# what only the sources have, and stays out.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/README.md)
file(READ ${PROJECT_SOURCE_DIR}/README.md readme)
string(REGEX REPLACE "\n## For developers\n.*" "" readme "${readme}")
file(WRITE ${PROJECT_BINARY_DIR}/README.md "${readme}")
set(documents ${CMAKE_INSTALL_DATAROOTDIR}/doc/tavimor)
install(FILES ${PROJECT_BINARY_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md
  DESTINATION ${documents} COMPONENT tavimor)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs ${PROJECT_SOURCE_DIR}/examples DESTINATION ${documents} COMPONENT tavimor
  PATTERN __pycache__ EXCLUDE PATTERN .gitattributes EXCLUDE
  PATTERN architecture.md EXCLUDE PATTERN releasing.md EXCLUDE)

# What a desktop reads.
if(UNIX AND NOT APPLE)
  install(FILES desktop/tavimor.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT tavimor)
  install(FILES desktop/tavimor.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT tavimor)
  install(FILES desktop/example.tavimor.tavimor.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
    COMPONENT tavimor)
  set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
  install(FILES icons/tavimor.svg DESTINATION ${icons}/scalable/apps COMPONENT tavimor)
  foreach(size 16 22 24 32 48 64 128 256 512)
    install(FILES icons/tavimor-${size}.png DESTINATION ${icons}/${size}x${size}/apps
      RENAME tavimor.png COMPONENT tavimor)
  endforeach()
endif()
