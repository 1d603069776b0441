# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Each i18n/zelvia_LANGUAGE.ts becomes a zelvia_LANGUAGE.qm, which tools, launcher and guide load; a language more is a file
# more. cmake --build build/release --target translations brings the files up to the sources.
find_program(QT_LRELEASE lrelease HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} REQUIRED)
find_program(QT_LUPDATE lupdate HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS})
file(GLOB translation_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/i18n/zelvia_*.ts)
foreach(source ${translation_sources})
  get_filename_component(name ${source} NAME_WE)
  set(translation ${CMAKE_BINARY_DIR}/share/${name}.qm)
  add_custom_command(OUTPUT ${translation} COMMAND ${QT_LRELEASE} -silent ${source} -qm ${translation}
    DEPENDS ${source} VERBATIM)
  list(APPEND ZELVIA_TRANSLATIONS ${translation})
endforeach()
add_custom_target(zelvia_translations ALL DEPENDS ${ZELVIA_TRANSLATIONS})
add_custom_target(translations
  COMMAND ${CMAKE_COMMAND} -E env QT_LUPDATE=${QT_LUPDATE} ${CMAKE_SOURCE_DIR}/i18n/update.sh ${translation_sources} VERBATIM)
