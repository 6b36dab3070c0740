# What an installation holds, and the Debian package of it.
include(GNUInstallDirs)

set(PACKAGE thistle-and-lantern)
set(COMPONENT_ID example.quenby_software.ThistleAndLantern)
set(RELEASE_DATE 2026-11-22)
set(packaging ${CMAKE_CURRENT_LIST_DIR})

# The identity is written down once, in the header that the program itself is built from.
function(read_identity constant variable)
  file(STRINGS ${CMAKE_SOURCE_DIR}/game/identity.h line REGEX " k${constant} = ")
  if(NOT line MATCHES "= \"?([^\";\\]+)")
    message(FATAL_ERROR "game/identity.h has no k${constant}")
  endif()
  set(${variable} "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()
read_identity(Title TITLE)
read_identity(Company COMPANY)
read_identity(SupportAddress SUPPORT_ADDRESS)
read_identity(WebSite WEB_SITE)
read_identity(Major major)
read_identity(Minor minor)
read_identity(Revision revision)
if(NOT PROJECT_VERSION STREQUAL "${major}.${minor}.${revision}")
  message(FATAL_ERROR "The project is version ${PROJECT_VERSION}, game/identity.h says ${major}.${minor}.${revision}")
endif()

file(READ ${CMAKE_SOURCE_DIR}/LICENSE LICENCE)
file(READ ${CMAKE_SOURCE_DIR}/desktop/fonts/OFL.txt FONT_LICENCE)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/game/identity.h ${CMAKE_SOURCE_DIR}/LICENSE ${CMAKE_SOURCE_DIR}/desktop/fonts/OFL.txt)

set(made ${CMAKE_BINARY_DIR}/packaging)
configure_file(${packaging}/copyright.in ${made}/copyright @ONLY)
set(documents share/doc/${PACKAGE})
install(TARGETS thistle-and-lantern RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} BUNDLE DESTINATION .)
install(FILES ${made}/copyright DESTINATION ${documents})

if(WIN32)
  include(${packaging}/windows/windows.cmake)
elseif(APPLE)
  include(${packaging}/macos/macos.cmake)
else()
  include(${packaging}/linux/linux.cmake)
  # What is packaged is what is released.
  if(BUILD_TESTING AND NOT CMAKE_BUILD_TYPE STREQUAL Debug)
    include(${packaging}/tests/tests.cmake)
  endif()
endif()
