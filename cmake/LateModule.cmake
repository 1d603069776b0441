# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later

# zelvia_late_module(name SOURCES files LINKS targets)
#   A module that a program loads when it first needs it, lib<name>.so with a "-" for each "_". It shows the program
#   nothing but the functions that are exported by name.
function(zelvia_late_module name)
  cmake_parse_arguments(LATE "" "" "SOURCES;LINKS" ${ARGN})
  string(REPLACE "_" "-" file ${name})
  add_library(${name} MODULE ${LATE_SOURCES})
  target_link_libraries(${name} PRIVATE ${LATE_LINKS} zelvia_options)
  target_compile_definitions(${name} PRIVATE ${ZELVIA_QT_STRICT})
  target_link_options(${name} PRIVATE LINKER:--exclude-libs,ALL)
  set_target_properties(${name} PROPERTIES OUTPUT_NAME ${file} AUTOMOC OFF CXX_VISIBILITY_PRESET hidden)
endfunction()

# zelvia_carry_late_module(program name)
#   Puts the bytes of the module into the program, so that a program folder holds one executable and nothing to lose.
function(zelvia_carry_late_module program name)
  set(image ${CMAKE_CURRENT_BINARY_DIR}/${name}.image)
  add_custom_command(OUTPUT ${image} COMMAND ${CMAKE_STRIP} --strip-unneeded -o ${image} $<TARGET_FILE:${name}>
    DEPENDS ${name} VERBATIM)
  target_sources(${program} PRIVATE LateImage.cpp LateImage.h)
  set_source_files_properties(LateImage.cpp PROPERTIES OBJECT_DEPENDS ${image}
    COMPILE_DEFINITIONS "ZELVIA_LATE_IMAGE=\"${image}\"")
endfunction()
