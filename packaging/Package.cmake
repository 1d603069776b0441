# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later

# What a package of a distribution holds: a component of its own, which a plain cmake --install leaves out. That one makes
# a program folder.

set(package COMPONENT package EXCLUDE_FROM_ALL)
set(packaging ${CMAKE_SOURCE_DIR}/packaging)

install(PROGRAMS ${packaging}/zelvia.sh DESTINATION bin RENAME zelvia ${package})
install(TARGETS zelvia-copie zelvia-strumenti DESTINATION bin ${package})
install(TARGETS zelvia zelvia-avvio zelvia-avviso zelvia-finestra zelvia-libro DESTINATION libexec/zelvia ${package})
install(FILES ${ZELVIA_GUIDE} ${ZELVIA_TRANSLATIONS} ${CMAKE_SOURCE_DIR}/share/mano.cur ${packaging}/folder-check.sh
  ${packaging}/before-start.sh DESTINATION share/zelvia ${package})
install(FILES ${packaging}/zelvia-strumenti.bash DESTINATION share/bash-completion/completions RENAME zelvia-strumenti
  ${package})
install(FILES ${packaging}/desktop/zelvia.desktop DESTINATION share/applications ${package})
install(FILES ${packaging}/desktop/org.zelvia.Zelvia.metainfo.xml DESTINATION share/metainfo ${package})
install(FILES ${packaging}/desktop/zelvia.svg DESTINATION share/icons/hicolor/scalable/apps ${package})
# Italian pages, for every locale: there are no others.
install(FILES ${packaging}/man/zelvia.1 ${packaging}/man/zelvia-copie.1 ${packaging}/man/zelvia-strumenti.1
  DESTINATION share/man/man1 ${package})
