# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later

file(GLOB_RECURSE ZELVIA_FORMATTED CONFIGURE_DEPENDS
  ${CMAKE_SOURCE_DIR}/src/*.cpp ${CMAKE_SOURCE_DIR}/src/*.h
  ${CMAKE_SOURCE_DIR}/tests/*.cpp ${CMAKE_SOURCE_DIR}/tests/*.h
  ${CMAKE_SOURCE_DIR}/bench/*.cpp ${CMAKE_SOURCE_DIR}/bench/*.h
  ${CMAKE_SOURCE_DIR}/fuzz/*.cpp ${CMAKE_SOURCE_DIR}/fuzz/*.h ${CMAKE_SOURCE_DIR}/cmake/*.cpp)

# cmake --build build/debug --target format | format-check | tidy
find_program(CLANG_FORMAT clang-format)
if(CLANG_FORMAT)
  add_custom_target(format COMMAND ${CLANG_FORMAT} -i ${ZELVIA_FORMATTED} VERBATIM)
  add_custom_target(format-check COMMAND ${CLANG_FORMAT} --dry-run --Werror ${ZELVIA_FORMATTED} VERBATIM)
endif()

find_program(CLANG_TIDY clang-tidy)
if(CLANG_TIDY)
  set(tidied ${ZELVIA_FORMATTED})
  list(FILTER tidied INCLUDE REGEX "/src/.*\\.cpp$")
  add_custom_target(tidy COMMAND ${CLANG_TIDY} --quiet -p ${CMAKE_BINARY_DIR} ${tidied} VERBATIM)
endif()
