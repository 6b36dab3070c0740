# Fails where a folder includes a header that its place in the house does not allow.
# Usage: cmake -DROOT=source-folder -P CheckArrows.cmake
#
# Includes in quotes are the project's own and begin with their folder. Toolkit and sound headers
# stand in angle brackets and are allowed in desktop/qt alone.
cmake_minimum_required(VERSION 3.23)

set(may_desktop desktop)
set(may_desktop_qt desktop desktop/qt)
set(may_Graphics desktop Graphics)
set(may_sounds desktop sounds)
set(may_game desktop Graphics sounds game)
set(may_table ${may_game} table)
set(may_shell ${may_table} shell)

set(toolkit "#include <(Q[A-Z]|q[a-z]+\\.h|SDL|X11/|windows\\.h)")
set(wrong "")
foreach(folder desktop desktop/qt Graphics sounds game table shell)
  string(REPLACE "/" "_" key "${folder}")
  file(GLOB files RELATIVE "${ROOT}" "${ROOT}/${folder}/*.h" "${ROOT}/${folder}/*.cpp")
  foreach(file IN LISTS files)
    if(NOT folder STREQUAL "desktop/qt")
      file(STRINGS "${ROOT}/${file}" lines REGEX "${toolkit}")
      foreach(line IN LISTS lines)
        string(APPEND wrong "\n  ${file}: ${line}")
      endforeach()
    endif()
    file(STRINGS "${ROOT}/${file}" lines REGEX "^#include \"")
    foreach(line IN LISTS lines)
      string(REGEX REPLACE "^#include \"(.*)/[^/]*\".*" "\\1" from "${line}")
      if(NOT from IN_LIST may_${key})
        string(APPEND wrong "\n  ${file}: ${line}")
      endif()
    endforeach()
  endforeach()
endforeach()
if(wrong)
  message(FATAL_ERROR "These includes run against the arrows of the house:${wrong}")
endif()
