# Desktop entry, metadata, icons and manual page, where a desktop looks for them, and the .deb.
configure_file(${packaging}/linux/entry.desktop.in ${made}/${PACKAGE}.desktop @ONLY)
configure_file(${packaging}/linux/metainfo.xml.in ${made}/${COMPONENT_ID}.metainfo.xml @ONLY)
configure_file(${packaging}/linux/manual.6.in ${made}/${PACKAGE}.6 @ONLY)
configure_file(${packaging}/linux/changelog.in ${made}/changelog @ONLY)

install(FILES ${made}/${PACKAGE}.desktop DESTINATION share/applications)
install(FILES ${made}/${COMPONENT_ID}.metainfo.xml DESTINATION share/metainfo)
foreach(size 16 24 32 48 64 128 256)
  install(FILES ${CMAKE_SOURCE_DIR}/Graphics/pictures/Icon${size}.png
          DESTINATION share/icons/hicolor/${size}x${size}/apps RENAME ${PACKAGE}.png)
endforeach()

# Without a time of its own in it a compressed page is the same from every build.
find_program(GZIP gzip REQUIRED)
foreach(page ${PACKAGE}.6 changelog)
  add_custom_command(OUTPUT ${made}/${page}.gz
    COMMAND ${GZIP} -9nkf ${made}/${page} DEPENDS ${made}/${page} VERBATIM)
endforeach()
add_custom_target(pages ALL DEPENDS ${made}/${PACKAGE}.6.gz ${made}/changelog.gz)
install(FILES ${made}/${PACKAGE}.6.gz DESTINATION share/man/man6)
install(FILES ${made}/changelog.gz DESTINATION ${documents})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${PACKAGE})
set(CPACK_PACKAGE_VENDOR ${COMPANY})
set(CPACK_PACKAGE_CONTACT "${COMPANY} <${SUPPORT_ADDRESS}>")
set(CPACK_PACKAGE_HOMEPAGE_URL ${WEB_SITE})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "dice-betting game for one player")
set(CPACK_PACKAGE_DESCRIPTION "Bet notes and coins on six symbols, click on the cup, and watch three
dice roll. A symbol that comes up brings the stake back and wins it once
for each die that shows it.
.
Pictures, sounds, fonts and instructions are inside the program.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${packaging}/linux/debian.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Loaded at the first sound, so that no look at the program finds it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libsdl2-2.0-0 (>= 2.0.12)")
# Qt asks it for the program that opens the support address and the web site.
# In a Wayland session it is sharp on dense screens only with its own plugin.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, qt6-wayland")
# Shared systems take exception to folders that a group may write to, whatever the umask was.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)
