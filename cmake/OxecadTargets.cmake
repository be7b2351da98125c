# What every target of this project has in common. Nothing here touches global flags, so that the project can be a part
# of another one.

# oxecad_own(TARGET): C++20, our warnings, our sanitizers, hidden symbols.
function(oxecad_own target)
  target_compile_features(${target} PRIVATE cxx_std_20)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlaps inside std::string that are none (its bug 105651).
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
  if(OXECAD_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(OXECAD_SANITIZE)
    target_compile_options(${target} PRIVATE
      -fsanitize=${OXECAD_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${OXECAD_SANITIZE})
  endif()
endfunction()

# oxecad_suite_library(NAME SOURCE...): one stand-in library of the closed suite, lib<NAME>.so, its headers included as
# <NAME/...>.
function(oxecad_suite_library name)
  add_library(${name} SHARED ${ARGN})
  add_library(oxecad::${name} ALIAS ${name})
  oxecad_own(${name})
  set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/platform> $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_compile_definitions(${name} PRIVATE OXECAD_PLATFORM_BUILD)
endfunction()

# oxecad_watch(TARGET): the program's cases run under strict mode of the stand-in toolkit (tests/support/StrictWatch.h).
function(oxecad_watch target)
  target_sources(${target} PRIVATE $<TARGET_OBJECTS:strict_watch>)
  target_link_libraries(${target} PRIVATE uiox)
endfunction()

# oxecad_test(NAME SOURCES FILE... LIBRARIES TARGET... [PREFIX TEXT] [UNWATCHED]): one test program; each of its cases is
# a test of its own and runs in a process of its own. Where components may meet the stand-in toolkit, strict mode
# watches, but for UNWATCHED: a program that plays the toolkit's own part.
# PRIVATE_MEMBERS: its code may look at what is private.
function(oxecad_test name)
  cmake_parse_arguments(arg "UNWATCHED;PRIVATE_MEMBERS" "PREFIX" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${arg_SOURCES} $<TARGET_OBJECTS:test_locale>)
  oxecad_own(${name})
  # The tests' own code is compiled much more often than it is run.
  target_compile_options(${name} PRIVATE -O0)
  if(arg_PRIVATE_MEMBERS)
    target_compile_options(${name} PRIVATE -fno-access-control)
    target_precompile_headers(${name} REUSE_FROM private_test_headers)
  else()
    target_precompile_headers(${name} REUSE_FROM test_headers)
  endif()
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} GTest::gtest_main)
  if(NOT arg_UNWATCHED AND arg_LIBRARIES MATCHES "test_support|oxecad::ui|viewer_(trees|app)")
    oxecad_watch(${name})
  endif()
  if(NOT arg_PREFIX)
    set(arg_PREFIX "${name}.")
  endif()
  gtest_discover_tests(${name} TEST_PREFIX "${arg_PREFIX}" DISCOVERY_TIMEOUT 120 DISCOVERY_MODE PRE_TEST
    PROPERTIES TIMEOUT 300 ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0")
endfunction()
