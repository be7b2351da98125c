# Debian packages by CPack: the libraries, the Qt front, what programs are built with, the documentation, the viewer. They are
# for a build with the prefix /usr and without run paths; packaging/build.sh makes such a build.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME oxecad-ui)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "The oxecad_ui authors <oxecad-ui@noreply.invalid>")
set(CPACK_PACKAGE_VENDOR "The oxecad_ui authors")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has a summary of its own

# The packages' own libraries are not installed where the dependencies are looked for.
foreach(target IN ITEMS oxecad_ui ${platform_libraries} uiox_qt)
  get_target_property(folder ${target} BINARY_DIR)
  list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${folder}")
endforeach()

set(libraries "lib${CPACK_PACKAGE_NAME}${PROJECT_VERSION_MAJOR}")
set(front "libuiox-qt${PROJECT_VERSION_MAJOR}")
set(this_version "(= ${PROJECT_VERSION})")
set(about "oxecad_ui holds the user-interface components of an electronic-CAD viewer:
trees of nets, layers and components in natural order, with checks and
colours, a comparison of two designs, verified input, rename and balloon
dialogs.
")

# oxecad_package(COMPONENT NAME SECTION SUMMARY DESCRIPTION [DEPENDS TEXT] [SHARED_LIBRARIES] [PROGRAMS] [ALL])
macro(oxecad_package component name section summary description)
  cmake_parse_arguments(arg "SHARED_LIBRARIES;PROGRAMS;ALL" "DEPENDS;RECOMMENDS;SUGGESTS" "" ${ARGN})
  string(TOUPPER ${component} COMPONENT)
  list(APPEND CPACK_COMPONENTS_ALL ${component})
  set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${COMPONENT}_DESCRIPTION "${summary}\n${about}\n${description}")
  set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_DEPENDS "${arg_DEPENDS}")
  set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_RECOMMENDS "${arg_RECOMMENDS}")
  set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_SUGGESTS "${arg_SUGGESTS}")
  if(arg_SHARED_LIBRARIES OR arg_PROGRAMS)
    set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_SHLIBDEPS ON)
  endif()
  if(arg_SHARED_LIBRARIES)
    set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/packaging/triggers")
  endif()
  if(arg_ALL)
    set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_ARCHITECTURE all)
  endif()
  install(FILES packaging/copyright DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${name}" COMPONENT ${component})
  install(FILES "${changelog}" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${name}" COMPONENT ${component})
endmacro()

# The changelog's date is that of the sources, so that two builds give the same bytes.
set(changelog_time "$ENV{SOURCE_DATE_EPOCH}")
if(changelog_time STREQUAL "")
  file(TIMESTAMP CHANGELOG.md changelog_time "%s" UTC)
endif()
execute_process(COMMAND date -u -R -d "@${changelog_time}" OUTPUT_VARIABLE changelog_date OUTPUT_STRIP_TRAILING_WHITESPACE)
set(changelog "${PROJECT_BINARY_DIR}/packaging/changelog.gz")
configure_file(packaging/changelog.in "${PROJECT_BINARY_DIR}/packaging/changelog" @ONLY)
execute_process(COMMAND gzip -9nkf "${PROJECT_BINARY_DIR}/packaging/changelog" COMMAND_ERROR_IS_FATAL ANY)

oxecad_package(runtime ${libraries} libs "user-interface components of an electronic-CAD viewer - libraries"
  "This package holds the library and the stand-in toolkit without windows." SHARED_LIBRARIES)
oxecad_package(front ${front} libs "user-interface components of an electronic-CAD viewer - Qt front"
  "This package holds the stand-in toolkit's front, which shows it in Qt windows."
  SHARED_LIBRARIES DEPENDS "${libraries} ${this_version}")
oxecad_package(development lib${CPACK_PACKAGE_NAME}-dev libdevel
  "user-interface components of an electronic-CAD viewer - headers"
  "This package holds what programs are built with: headers, CMake package and\npkg-config files."
  DEPENDS "${libraries} ${this_version}, ${front} ${this_version}" RECOMMENDS "cmake | pkg-config"
  SUGGESTS "qt6-base-dev, lib${CPACK_PACKAGE_NAME}-doc")
oxecad_package(viewer oxviewer electronics "viewer and comparison of boards of electronic designs"
  "This package holds an example viewer, which opens KiCad boards and compares two\nrevisions of one."
  PROGRAMS DEPENDS "${libraries} ${this_version}, ${front} ${this_version}")
if(TARGET docs)
  set_target_properties(docs PROPERTIES EXCLUDE_FROM_ALL OFF)
  install(DIRECTORY "${PROJECT_BINARY_DIR}/docs/html" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/lib${CPACK_PACKAGE_NAME}-doc"
    COMPONENT documentation)
  install(DIRECTORY examples DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/lib${CPACK_PACKAGE_NAME}-doc"
    COMPONENT documentation FILES_MATCHING PATTERN "*.cpp" PATTERN "*.res" PATTERN "*.txt" PATTERN "CMakeLists.txt" EXCLUDE
    PATTERN "pictures" EXCLUDE)
  oxecad_package(documentation lib${CPACK_PACKAGE_NAME}-doc doc
    "user-interface components of an electronic-CAD viewer - documentation"
    "This package holds the documentation as HTML, and the examples." ALL)
endif()

install(FILES packaging/lintian-overrides DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides" RENAME ${libraries}
  COMPONENT runtime)
set(manual "${PROJECT_BINARY_DIR}/packaging/oxviewer.1")
configure_file(packaging/oxviewer.1 "${manual}" COPYONLY)
execute_process(COMMAND gzip -9nkf "${manual}" COMMAND_ERROR_IS_FATAL ANY)
install(FILES "${manual}.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT viewer)
install(FILES packaging/oxviewer.desktop DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT viewer)
include(CPack)
