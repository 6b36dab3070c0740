# Fails where a folder includes a header that its place in the house does not allow.
# Usage: cmake -DROOT=source-folder -P CheckIncludes.cmake
#
# Includes in quotes are the project's own and begin with their folder. Includes in angle brackets are the standard
# library's, or a toolkit's or the platform's, which only the folders of the real desktops may have.
cmake_minimum_required(VERSION 3.23)

set(desktop desktop)
set(common ${desktop} desktop/common)
set(game desktop Graphics sounds game)

set(may_desktop ${desktop})
set(may_desktop_common ${common})
set(may_desktop_simulated ${common} desktop/simulated)
set(may_desktop_sdl ${desktop} desktop/sdl)
set(may_desktop_qt ${common} desktop/sdl desktop/qt)
set(may_desktop_win32 ${common} desktop/win32)
set(may_Graphics desktop Graphics)
set(may_sounds desktop sounds)
set(may_game ${game})
set(may_table ${game} table)
set(may_shell ${game} table shell)

# The headers of toolkits and platforms, in lower case, and the folders that may have them.
set(qt "q[a-z]*(/.*)?")
set(sdl "(sdl2?/)?sdl.*\\.h")
set(windows "(windows|windowsx|winuser|wingdi|winreg|commctrl|commdlg|mmsystem|wincodec|shellapi|shlobj|objbase|oleacc|imm|uiautomation|richedit|uxtheme|vssym32|dwmapi|initguid|tchar)\\.h")
set(posix "(x11/.*|xcb/.*|dlfcn\\.h|unistd\\.h|signal\\.h|sys/.*|wayland.*)")
set(has_qt desktop/qt)
set(has_sdl desktop/sdl)
set(has_windows desktop/win32)
set(has_posix desktop/qt desktop/sdl)

set(wrong "")
file(GLOB_RECURSE files RELATIVE "${ROOT}" "${ROOT}/desktop/*.h" "${ROOT}/desktop/*.cpp" "${ROOT}/Graphics/*.h"
  "${ROOT}/Graphics/*.cpp" "${ROOT}/sounds/*.h" "${ROOT}/sounds/*.cpp" "${ROOT}/game/*.h" "${ROOT}/game/*.cpp"
  "${ROOT}/table/*.h" "${ROOT}/table/*.cpp" "${ROOT}/shell/*.h" "${ROOT}/shell/*.cpp")
foreach(file IN LISTS files)
  get_filename_component(folder "${file}" DIRECTORY)
  string(REPLACE "/" "_" key "${folder}")
  if(NOT DEFINED may_${key})
    string(APPEND wrong "\n  ${file}: nobody has said what ${folder} may include")
    continue()
  endif()
  file(STRINGS "${ROOT}/${file}" lines REGEX "^[ \t]*#[ \t]*include")
  foreach(line IN LISTS lines)
    if(line MATCHES "\"([^\"]*)\"")
      get_filename_component(from "${CMAKE_MATCH_1}" DIRECTORY)
      if(NOT from IN_LIST may_${key})
        string(APPEND wrong "\n  ${file}: ${line}")
      endif()
    elseif(line MATCHES "<([^>]*)>")
      string(TOLOWER "${CMAKE_MATCH_1}" header)
      foreach(toolkit qt sdl windows posix)
        if(header MATCHES "^${${toolkit}}$" AND NOT header STREQUAL "queue" AND NOT folder IN_LIST has_${toolkit})
          string(APPEND wrong "\n  ${file}: ${line}")
        endif()
      endforeach()
    endif()
  endforeach()
endforeach()
if(wrong)
  message(FATAL_ERROR "These includes do not fit into the house:${wrong}")
endif()
