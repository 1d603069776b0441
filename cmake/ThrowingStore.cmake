# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later

# A value that a failing read was to replace must still be there after the trap. GCC 12 drops the store before such an
# assignment; without that one optimisation it does not. ThrowingStore.cpp shows whether this compiler needs the flag.

# Sets ZELVIA_DROPS_STORES in the cache: with the build's own flags, or at any level that a build may ask for.
function(zelvia_ask_for_dropped_stores)
  foreach(level IN ITEMS "" -O1 -O2 -O3)
    unset(ZELVIA_STORES_RUN CACHE)
    unset(ZELVIA_STORES_BUILT CACHE)
    try_run(ZELVIA_STORES_RUN ZELVIA_STORES_BUILT ${CMAKE_BINARY_DIR}/ThrowingStore
      ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/ThrowingStore.cpp COMPILE_DEFINITIONS ${level})
    if(NOT ZELVIA_STORES_BUILT OR NOT ZELVIA_STORES_RUN EQUAL 0)
      set(ZELVIA_DROPS_STORES ON CACHE INTERNAL "The compiler drops a store before an assignment that throws")
      return()
    endif()
  endforeach()
  set(ZELVIA_DROPS_STORES OFF CACHE INTERNAL "The compiler drops a store before an assignment that throws")
endfunction()

# The fault and the flag are GCC's. A cross compiler, whose output can't be run, gets the flag: its cost can't be
# measured.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  if(NOT DEFINED CACHE{ZELVIA_DROPS_STORES})
    message(CHECK_START "Does the compiler keep what a throwing call was to replace?")
    if(CMAKE_CROSSCOMPILING AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
      set(ZELVIA_DROPS_STORES ON CACHE INTERNAL "The compiler can't be asked whether it drops stores")
    else()
      zelvia_ask_for_dropped_stores()
    endif()
    if(ZELVIA_DROPS_STORES)
      message(CHECK_FAIL "no: -fno-tree-dse")
    else()
      message(CHECK_PASS "yes")
    endif()
  endif()
  if(ZELVIA_DROPS_STORES)
    add_compile_options(-fno-tree-dse)
  endif()
endif()
