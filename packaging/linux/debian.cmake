# Debian keeps games in a folder of their own.
set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX})
file(RENAME ${root}/bin ${root}/games)
