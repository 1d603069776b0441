# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Guida.hlp, the guide as one compressed help file of Qt, is made with the rest of the build.
find_program(QHELPGENERATOR qhelpgenerator
  HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS} ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)
file(GLOB guide_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/share/guida/*)
set(ZELVIA_GUIDE ${CMAKE_BINARY_DIR}/share/Guida.hlp)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/share)
add_custom_command(OUTPUT ${ZELVIA_GUIDE}
  COMMAND ${QHELPGENERATOR} ${CMAKE_SOURCE_DIR}/share/guida/guida.qhp -o ${ZELVIA_GUIDE}
  DEPENDS ${guide_sources} VERBATIM)
add_custom_target(zelvia_guide_file ALL DEPENDS ${ZELVIA_GUIDE})
