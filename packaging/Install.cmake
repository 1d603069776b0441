# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later

# cmake --install build/release --prefix DIR makes DIR a complete program folder. What the user may have written there
# stays untouched: "nomeload" is installed once, and of "ZelviaFile" only the folder.

include(${CMAKE_SOURCE_DIR}/cmake/Guide.cmake)
include(${CMAKE_SOURCE_DIR}/cmake/Translations.cmake)

install(TARGETS zelvia DESTINATION .)
install(FILES ${ZELVIA_GUIDE} ${CMAKE_SOURCE_DIR}/share/mano.cur DESTINATION .)
install(CODE [[
  set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
  file(MAKE_DIRECTORY "${folder}/ZelviaFile")
  set(pointer "${folder}/nomeload")
  if(NOT EXISTS "${pointer}" AND NOT IS_SYMLINK "${pointer}")
    message(STATUS "Installing: ${pointer}")
    file(WRITE "${pointer}" "\"\"\r\n")
  endif()
]])
