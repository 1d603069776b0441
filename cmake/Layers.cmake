# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Each folder of src/ is seen through an include folder of its own that holds nothing but it, so a layer finds the
# headers of the layers it links and of no other: an include against the arrows does not compile.

add_library(zelvia_options INTERFACE)
target_compile_options(zelvia_options INTERFACE
  -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 takes joined texts for overlapping or endless copies as soon as it optimises.
  target_compile_options(zelvia_options INTERFACE
    -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
endif()
if(ZELVIA_SANITIZE)
  target_compile_options(zelvia_options INTERFACE
    -O1 -g1 -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(zelvia_options INTERFACE -fsanitize=address,undefined)
endif()
if(ZELVIA_FUZZ)
  target_compile_options(zelvia_options INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_definitions(zelvia_options INTERFACE ZELVIA_FUZZ _GLIBCXX_ASSERTIONS)
  target_link_options(zelvia_options INTERFACE -fsanitize=address,undefined)
endif()
if(ZELVIA_COVERAGE)
  target_compile_options(zelvia_options INTERFACE --coverage -O0)
  target_link_options(zelvia_options INTERFACE --coverage)
endif()

set(ZELVIA_QT_STRICT
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_KEYWORDS QT_NO_JAVA_STYLE_ITERATORS QT_STRICT_ITERATORS
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# zelvia_layer(name FOLDER folder SOURCES files LINKS targets [WIDGETS])
#   A library of one layer, from files of its folder. One with WIDGETS links Qt's widgets and reads their
#   headers precompiled; without, it is plain standard C++, and Qt is not even on its include path.
function(zelvia_layer name)
  cmake_parse_arguments(LAYER "WIDGETS" "FOLDER" "SOURCES;LINKS" ${ARGN})
  list(TRANSFORM LAYER_SOURCES PREPEND ${LAYER_FOLDER}/)
  add_library(${name} STATIC ${LAYER_SOURCES})
  string(MAKE_C_IDENTIFIER ${LAYER_FOLDER} id)
  set(view ${CMAKE_BINARY_DIR}/layers/${id})
  get_filename_component(parent ${view}/${LAYER_FOLDER} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${LAYER_FOLDER} ${view}/${LAYER_FOLDER} SYMBOLIC)
  target_include_directories(${name} PUBLIC ${view})
  target_link_libraries(${name} PUBLIC ${LAYER_LINKS} PRIVATE zelvia_options)
  if(LAYER_WIDGETS)
    zelvia_reads_precompiled(${name} widgets)
    target_compile_definitions(${name} PRIVATE ${ZELVIA_QT_STRICT})
  else()
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
  endif()
  zelvia_headers_compile_alone(${name} "${LAYER_WIDGETS}" ${LAYER_SOURCES})
endfunction()

# A source for each header that includes nothing but that header; compiled by the target zelvia_headers_alone. Those of
# windows read the precompiled headers too, without which most of them take five seconds.
function(zelvia_headers_compile_alone layer widgets)
  set(checks)
  foreach(file ${ARGN})
    if(file MATCHES "\\.h$")
      get_filename_component(absolute ${file} ABSOLUTE)
      file(RELATIVE_PATH header ${CMAKE_SOURCE_DIR}/src ${absolute})
      string(MAKE_C_IDENTIFIER ${header} id)
      set(check ${CMAKE_BINARY_DIR}/headers/${id}.cpp)
      file(CONFIGURE OUTPUT ${check} CONTENT "#include \"${header}\" // IWYU pragma: keep\n")
      list(APPEND checks ${check})
    endif()
  endforeach()
  if(checks AND ZELVIA_HEADERS_ALONE)
    if(NOT TARGET zelvia_headers_alone)
      add_custom_target(zelvia_headers_alone)
    endif()
    add_library(${layer}_headers OBJECT EXCLUDE_FROM_ALL ${checks})
    add_dependencies(zelvia_headers_alone ${layer}_headers)
    set_target_properties(${layer}_headers PROPERTIES AUTOMOC OFF UNITY_BUILD OFF)
    target_link_libraries(${layer}_headers PRIVATE ${layer} zelvia_options)
    target_compile_definitions(${layer}_headers PRIVATE $<TARGET_PROPERTY:${layer},COMPILE_DEFINITIONS>)
    if(widgets)
      zelvia_reads_precompiled(${layer}_headers widgets)
    endif()
  endif()
endfunction()
