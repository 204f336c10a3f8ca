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
