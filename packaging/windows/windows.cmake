# Icon and version inside the program, and the script of its installer.
configure_file(${packaging}/windows/version.rc.in ${made}/version.rc @ONLY)
set_source_files_properties(${made}/version.rc PROPERTIES
  OBJECT_DEPENDS ${packaging}/windows/${PACKAGE}.ico)
target_sources(thistle-and-lantern PRIVATE ${made}/version.rc)
configure_file(${packaging}/windows/installer.nsi.in ${made}/installer.nsi @ONLY)
