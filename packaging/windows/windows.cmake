# Icon and version inside the program.
configure_file(${packaging}/windows/version.rc.in ${made}/version.rc @ONLY)
set_source_files_properties(${made}/version.rc PROPERTIES
  OBJECT_DEPENDS ${packaging}/windows/${PACKAGE}.ico)
target_sources(thistle-and-lantern PRIVATE ${made}/version.rc)
