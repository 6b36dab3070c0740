# A windowed program with icon and version, and Qt's libraries beside it when installed.
configure_file(${packaging}/windows/version.rc.in ${made}/version.rc @ONLY)
set_source_files_properties(${made}/version.rc PROPERTIES
  OBJECT_DEPENDS ${packaging}/windows/${PACKAGE}.ico)
target_sources(thistle-and-lantern PRIVATE ${made}/version.rc)
set_target_properties(thistle-and-lantern PROPERTIES WIN32_EXECUTABLE ON)

qt_generate_deploy_app_script(TARGET thistle-and-lantern FILENAME_VARIABLE deploy)
install(SCRIPT ${deploy})
# The library that sounds are played by is loaded by name, so that nothing else brings it along.
install(FILES $<TARGET_FILE:SDL2::SDL2> DESTINATION ${CMAKE_INSTALL_BINDIR})
