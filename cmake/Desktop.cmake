# Installation. `cmake --install` lays out a portable program folder, the
# executable with its data files beside it, under <prefix>/lib/cartomar, with
# a launcher in <prefix>/bin and what the desktop needs to offer the program:
# the menu entry, the icon, the software-centre description and the type of
# package files, so that a package opens in the installer from the file
# manager. Installed under /usr (the .deb below), the folder is shared by every
# user, and each user's run copies it into a folder of their own (see
# src/shell/ProgramFolder.h).
set(CARTOMAR_ID com.ondinesoftware.Cartomar)
set(CARTOMAR_PROGRAM_FOLDER lib/cartomar)
set(CARTOMAR_PROGRAM_DIR $<TARGET_FILE_DIR:cartomar>)

install(TARGETS cartomar RUNTIME DESTINATION ${CARTOMAR_PROGRAM_FOLDER})
# An empty location file marks a database of the present format, so a first
# start is not greeted by the converter. Made here rather than taken from the
# build tree, whose own file holds the developer's spreads.
file(WRITE ${CMAKE_BINARY_DIR}/install/Location.loc "")
install(FILES ${CMAKE_BINARY_DIR}/install/Location.loc DESTINATION ${CARTOMAR_PROGRAM_FOLDER})
install(DIRECTORY DESTINATION ${CARTOMAR_PROGRAM_FOLDER}/Packages)
install(FILES "${CARTOMAR_PROGRAM_DIR}/Packages/Cartomar Starter.pck"
        DESTINATION ${CARTOMAR_PROGRAM_FOLDER}/Packages OPTIONAL)

configure_file(${CMAKE_SOURCE_DIR}/desktop/${CARTOMAR_ID}.metainfo.xml
               ${CMAKE_BINARY_DIR}/install/${CARTOMAR_ID}.metainfo.xml @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/install/${CARTOMAR_ID}.metainfo.xml DESTINATION share/metainfo)
install(FILES ${CMAKE_SOURCE_DIR}/desktop/cartomar.xml DESTINATION share/mime/packages)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/desktop/icons/ DESTINATION share/icons)

# The rest is decided at install time, when the prefix is known: the help
# (whichever of its files exist then), the launcher's link, the menu entry
# naming the launcher, and the desktop's caches of a user's own install.
install(CODE "set(CARTOMAR_SOURCE_DIR \"${CMAKE_SOURCE_DIR}\")
set(CARTOMAR_BINARY_DIR \"${CMAKE_BINARY_DIR}\")
set(CARTOMAR_ID \"${CARTOMAR_ID}\")
set(CARTOMAR_PROGRAM_FOLDER \"${CARTOMAR_PROGRAM_FOLDER}\")")
install(SCRIPT ${CMAKE_SOURCE_DIR}/cmake/InstallDesktop.cmake)

# `cpack -G DEB` (or plain `cpack`): the same layout under /usr.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME cartomar)
set(CPACK_PACKAGE_VENDOR "Ondine Software Inc.")
set(CPACK_PACKAGE_CONTACT "Ondine Software Inc. <support@ondinesoftware.com>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "tarot readings, spreads, decks and a diary")
set(CPACK_PACKAGE_DESCRIPTION
    "Cartomar lays tarot spreads: it shuffles a deck, deals the cards into the places of a spread and shows what \
the designers wrote for each place and card, with pictures and sounds. Readings are annotated, saved and printed; \
a diary keeps readings done with real cards. Designers create decks and spreads and pass them on as package files.")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.ondinesoftware.com")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_PREFIX /usr)
# Installed with DESTDIR so that the install script sees the real prefix and
# the menu entry names /usr/bin/cartomar, not the staging folder.
set(CPACK_SET_DESTDIR ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt reads WebP and TIFF pictures through plugins that no library names, so
# the shared-library scan cannot find them: the import converts those pictures
# only with this package.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-image-formats-plugins")
# Sounds play through GStreamer; the screens are set in DejaVu; Qt's own
# dialogues and buttons speak the user's language through Debian's catalogues.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "gstreamer1.0-plugins-base, gstreamer1.0-plugins-good, fonts-dejavu-core, qt6-translations-l10n")
include(CPack)

# The installed layout, checked by the desktop's own validators.
add_test(NAME desktop_install
         COMMAND ${CMAKE_COMMAND} -DBUILD_DIR=${CMAKE_BINARY_DIR} -DPREFIX=${CMAKE_BINARY_DIR}/test-install
                 -DCARTOMAR_ID=${CARTOMAR_ID} -P ${CMAKE_SOURCE_DIR}/tests/desktop/InstallCheck.cmake)
set_tests_properties(desktop_install PROPERTIES TIMEOUT 300)
# The Debian package, built and looked into (about ten seconds).
add_test(NAME desktop_deb
         COMMAND ${CMAKE_COMMAND} -DBUILD_DIR=${CMAKE_BINARY_DIR} -DOUT=${CMAKE_BINARY_DIR}/test-deb
                 -DCARTOMAR_ID=${CARTOMAR_ID} -P ${CMAKE_SOURCE_DIR}/tests/desktop/DebCheck.cmake)
# Both installs write the menu entry into build/install/ before copying it,
# each with its own prefix, so they never run at the same time.
set_tests_properties(desktop_deb PROPERTIES TIMEOUT 300 RESOURCE_LOCK cartomar_install)
set_tests_properties(desktop_install PROPERTIES RESOURCE_LOCK cartomar_install)
