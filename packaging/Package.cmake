# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later

# cpack --preset release makes the Debian package. Its files are a separate component, which a plain cmake --install
# leaves out: that one makes a program folder.

set(package COMPONENT package EXCLUDE_FROM_ALL)
set(packaging ${CMAKE_SOURCE_DIR}/packaging)

# What Debian wants compressed, without a date inside, so that builds are reproducible.
find_program(GZIP gzip REQUIRED)
set(compressed)
foreach(file man/zelvia.1 man/zelvia-copie.1 debian/changelog)
  set(result ${CMAKE_BINARY_DIR}/packaging/${file}.gz)
  get_filename_component(result_folder ${result} DIRECTORY)
  file(MAKE_DIRECTORY ${result_folder})
  add_custom_command(OUTPUT ${result} COMMAND ${GZIP} -9nc ${packaging}/${file} > ${result}
    DEPENDS ${packaging}/${file} VERBATIM)
  list(APPEND compressed ${result})
endforeach()
add_custom_target(zelvia_compressed ALL DEPENDS ${compressed})
list(FILTER compressed INCLUDE REGEX "/man/")

install(PROGRAMS ${packaging}/zelvia.sh DESTINATION bin RENAME zelvia ${package})
install(TARGETS zelvia-copie DESTINATION bin ${package})
install(TARGETS zelvia zelvia-avviso DESTINATION libexec/zelvia ${package})
install(FILES ${ZELVIA_GUIDE} ${CMAKE_SOURCE_DIR}/share/mano.cur ${packaging}/folder-check.sh
  DESTINATION share/zelvia ${package})
install(FILES ${packaging}/desktop/zelvia.desktop DESTINATION share/applications ${package})
install(FILES ${packaging}/desktop/org.zelvia.Zelvia.metainfo.xml DESTINATION share/metainfo ${package})
install(FILES ${packaging}/desktop/zelvia.svg DESTINATION share/icons/hicolor/scalable/apps ${package})
# Italian pages, for every locale: there are no others.
install(FILES ${compressed} DESTINATION share/man/man1 ${package})
install(FILES ${packaging}/debian/copyright ${CMAKE_BINARY_DIR}/packaging/debian/changelog.gz
  DESTINATION share/doc/zelvia ${package})

# Besides the libraries, which dpkg-shlibdeps finds, the package needs the [run] section of the list of packages.
execute_process(COMMAND bash -euc ". '${packaging}/packages.sh'; packages_in run"
  OUTPUT_VARIABLE run_packages OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\n" ", " CPACK_DEBIAN_PACKAGE_DEPENDS "${run_packages}")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${packaging}/packages ${packaging}/debian/description)

set(CPACK_GENERATOR DEB)
set(CPACK_INSTALL_CMAKE_PROJECTS "${CMAKE_BINARY_DIR};${PROJECT_NAME};package;/")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_NAME zelvia)
set(CPACK_PACKAGE_CONTACT "The Zelvia authors <zelvia@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "diario di chi corre, con una pagina per ogni giorno")
file(READ ${packaging}/debian/description CPACK_DEBIAN_PACKAGE_DESCRIPTION)
string(STRIP "${CPACK_DEBIAN_PACKAGE_DESCRIPTION}" CPACK_DEBIAN_PACKAGE_DESCRIPTION)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
include(CPack)
