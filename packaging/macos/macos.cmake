# A bundle with icon and version, and Qt's frameworks inside it when installed.
set(icon ${packaging}/macos/${PACKAGE}.icns)
target_sources(thistle-and-lantern PRIVATE ${icon})
set_source_files_properties(${icon} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
set_target_properties(thistle-and-lantern PROPERTIES
  MACOSX_BUNDLE ON
  OUTPUT_NAME ${TITLE}
  MACOSX_BUNDLE_BUNDLE_NAME ${TITLE}
  MACOSX_BUNDLE_GUI_IDENTIFIER ${COMPONENT_ID}
  MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION}
  MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION}
  MACOSX_BUNDLE_COPYRIGHT "© 2026 ${COMPANY}"
  MACOSX_BUNDLE_ICON_FILE ${PACKAGE}.icns)

qt_generate_deploy_app_script(TARGET thistle-and-lantern FILENAME_VARIABLE deploy)
install(SCRIPT ${deploy})
