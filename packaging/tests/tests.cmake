# Tests of what is installed. One whose program is missing says so and counts as skipped.
function(add_packaging_test name program)
  find_program(${program}_program ${program})
  if(${program}_program)
    add_test(NAME ${name} COMMAND ${ARGN})
  else()
    add_test(NAME ${name} COMMAND ${CMAKE_COMMAND} -E echo "${name} skipped: ${program} is not installed")
    set_property(TEST ${name} PROPERTY SKIP_REGULAR_EXPRESSION "^${name} skipped:")
  endif()
  set_property(TEST ${name} PROPERTY LABELS packaging)
endfunction()

set(tree ${made}/tree)
add_packaging_test(installation cmake ${packaging}/tests/installation_test.py ${CMAKE_BINARY_DIR} ${tree})
add_packaging_test(desktop_entry desktop-file-validate
  desktop-file-validate ${tree}/share/applications/${PACKAGE}.desktop)
add_packaging_test(metainfo appstreamcli
  appstreamcli validate --no-net --no-color ${tree}/share/metainfo/${COMPONENT_ID}.metainfo.xml)
add_packaging_test(manual man
  man --warnings=w --encoding=UTF-8 --local-file ${tree}/share/man/man6/${PACKAGE}.6.gz)
set_property(TEST manual PROPERTY FAIL_REGULAR_EXPRESSION "warning|error")
set_property(TEST installation PROPERTY FIXTURES_SETUP tree)
set_property(TEST desktop_entry metainfo manual PROPERTY FIXTURES_REQUIRED tree)

execute_process(COMMAND dpkg --print-architecture OUTPUT_VARIABLE architecture OUTPUT_STRIP_TRAILING_WHITESPACE)
set(deb ${made}/deb/${PACKAGE}_${PROJECT_VERSION}_${architecture}.deb)
add_packaging_test(package dpkg-shlibdeps ${CMAKE_CPACK_COMMAND} -B ${made}/deb)
add_packaging_test(package_policy lintian lintian --allow-root --fail-on error,warning ${deb})
add_packaging_test(bare_system debootstrap ${packaging}/tests/bare_system_test.py ${deb})
set_property(TEST bare_system PROPERTY SKIP_RETURN_CODE 77)
set_property(TEST bare_system APPEND PROPERTY LABELS bare_system)
set_property(TEST package PROPERTY FIXTURES_SETUP package)
set_property(TEST package_policy bare_system PROPERTY FIXTURES_REQUIRED package)
