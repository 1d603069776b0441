# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later

# A release is hardened as Debian hardens its packages, so that the tests run on what the package holds.
if(CMAKE_BUILD_TYPE STREQUAL "Release")
  include(CheckCXXCompilerFlag)
  # Clang takes the flags of other processors, too.
  if(CMAKE_SYSTEM_PROCESSOR STREQUAL "aarch64")
    set(jumps -mbranch-protection=standard)
  else()
    set(jumps -fcf-protection)
  endif()
  foreach(flag -fstack-protector-strong -fstack-clash-protection ${jumps})
    string(MAKE_C_IDENTIFIER "ZELVIA_HAS${flag}" known)
    check_cxx_compiler_flag(${flag} ${known})
    if(${known})
      add_compile_options(${flag})
    endif()
  endforeach()
  add_compile_definitions(_FORTIFY_SOURCE=2)
  add_link_options(LINKER:-z,relro,-z,now)
endif()
