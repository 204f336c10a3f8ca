# What `cmake --install` puts under the prefix: the program, its aircraft pictures (copied into the
# user's own folder on first start), the desktop entry and the icon.
install(TARGETS quillet RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/pictures/ DESTINATION ${CMAKE_INSTALL_DATADIR}/quillet/pictures
    FILES_MATCHING PATTERN "*.gif")
install(FILES ${PROJECT_SOURCE_DIR}/desktop/quillet.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_SOURCE_DIR}/desktop/quillet.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(size ${QUILLET_ICON_SIZES})
    install(FILES ${PROJECT_SOURCE_DIR}/desktop/icons/${size}x${size}/quillet.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()

# The manual page and the package's documents, compressed the way Debian keeps them (no time stamp
# in the gzip header, so that two builds give the same bytes).
find_program(GZIP gzip REQUIRED)
set(docs ${PROJECT_BINARY_DIR}/docs)
configure_file(${PROJECT_SOURCE_DIR}/package/changelog.in ${docs}/in/changelog @ONLY)
add_custom_command(OUTPUT ${docs}/quillet.1.gz ${docs}/changelog.gz
    COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/package/quillet.1 ${docs}/in/changelog ${docs}
    COMMAND ${GZIP} -9nf ${docs}/quillet.1 ${docs}/changelog
    DEPENDS ${PROJECT_SOURCE_DIR}/package/quillet.1 ${docs}/in/changelog
    VERBATIM)
add_custom_target(quillet_docs ALL DEPENDS ${docs}/quillet.1.gz ${docs}/changelog.gz)
install(FILES ${docs}/quillet.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${docs}/changelog.gz ${PROJECT_SOURCE_DIR}/package/copyright
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/quillet)
install(FILES ${PROJECT_SOURCE_DIR}/desktop/example.c_seed_130c84dc.quillet.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
