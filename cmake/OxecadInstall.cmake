# What an install holds, as a stranger finds it: headers, libraries, the CMake package with its components (ui, uiox, qt)
# and the pkg-config files. The prefix may be moved afterwards.
include(CMakePackageConfigHelpers)

# The wire's typed layer and what the families share stay inside: only what these headers declare is the interface.
set(oxecad_ui_headers
  oxecad_ui.h Version.h
  toolkit/Export.h toolkit/Toolkit.h
  base/BaseTree.h base/Component.h
  tree/Comparators.h tree/StringComparators.h tree/Tree.h
  color/ColorIconBag.h color/ColorTree.h color/EcadTree.h
  compare/CompareColorTree.h
  userdata/UserDataTree.h
  input/InputTest.h input/InputVerifier.h
  dialogs/BalloonMessage.h dialogs/DefaultActions.h dialogs/MarkupTags.h dialogs/RenameWithBalloonDlg.h)
foreach(header IN LISTS oxecad_ui_headers)
  get_filename_component(folder "${header}" DIRECTORY)
  install(FILES "uicomps/${header}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/uicomps/${folder}" COMPONENT development)
endforeach()

set(oxecad_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/oxecad_ui")

# oxecad_install_targets(COMPONENT RUNTIME TARGET...): libraries, found by one another wherever the prefix lies. COMPONENT
# is the package's, RUNTIME the installation's.
function(oxecad_install_targets component runtime)
  foreach(target IN LISTS ARGN)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "SHARED_LIBRARY")
      set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
    endif()
  endforeach()
  install(TARGETS ${ARGN} EXPORT oxecad_ui-${component}
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT ${runtime} NAMELINK_COMPONENT development)
  install(EXPORT oxecad_ui-${component} NAMESPACE oxecad:: DESTINATION "${oxecad_package_dir}" COMPONENT development)
  # The build tree can be found as well: with oxecad_ui_DIR set to it.
  export(EXPORT oxecad_ui-${component} NAMESPACE oxecad:: FILE "${PROJECT_BINARY_DIR}/oxecad_ui-${component}.cmake")
endfunction()

set(platform_libraries "")
if(NOT OXECAD_PLATFORM_DIR)
  set(platform_libraries oxkutils oxecadutils rtlcoreox uitoolsox oxcore oxk oxg uiox)
  install(DIRECTORY platform/ DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT development
    FILES_MATCHING PATTERN "*.h" PATTERN "detail" EXCLUDE PATTERN "uiox_qt" EXCLUDE)
endif()
oxecad_install_targets(ui runtime oxecad_ui oxecad_platform ${platform_libraries})

if(OXECAD_BUILD_QT)
  oxecad_install_targets(qt front uiox_qt)
  install(FILES platform/uiox_qt/QtFront.h platform/uiox_qt/Export.h
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/uiox_qt" COMPONENT development)
  file(RELATIVE_PATH libraries_from_programs "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
  set_target_properties(oxviewer PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries_from_programs}")
  install(TARGETS oxviewer RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT viewer)
endif()

configure_package_config_file(cmake/oxecad_uiConfig.cmake.in "${PROJECT_BINARY_DIR}/oxecad_uiConfig.cmake"
  INSTALL_DESTINATION "${oxecad_package_dir}" NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/oxecad_uiConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/oxecad_uiConfig.cmake" "${PROJECT_BINARY_DIR}/oxecad_uiConfigVersion.cmake"
  DESTINATION "${oxecad_package_dir}" COMPONENT development)

# The pkg-config files find their prefix from where they lie.
file(RELATIVE_PATH oxecad_prefix_from_pc "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" oxecad_prefix_from_pc "${oxecad_prefix_from_pc}")

# oxecad_pkg_config(NAME DESCRIPTION LIBRARIES [REQUIRES])
function(oxecad_pkg_config name description libraries)
  set(requires "${ARGN}")
  configure_file("${PROJECT_SOURCE_DIR}/cmake/oxecad.pc.in" "${PROJECT_BINARY_DIR}/${name}.pc" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${name}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
endfunction()

set(ui_libraries "-L\${libdir} -loxecad_ui")
set(platform_cflags "")
foreach(library IN LISTS platform_libraries)
  string(APPEND ui_libraries " -l${library}")
endforeach()
if(OXECAD_PLATFORM_DIR)
  set(platform_cflags " -I${OXECAD_PLATFORM_DIR}/include")
  get_target_property(libraries oxecad_platform INTERFACE_LINK_LIBRARIES)
  list(JOIN libraries " " libraries)
  string(APPEND ui_libraries " ${libraries}")
endif()
oxecad_pkg_config(oxecad_ui "${PROJECT_DESCRIPTION}" "${ui_libraries}")
if(NOT OXECAD_PLATFORM_DIR)
  oxecad_pkg_config(oxecad_uiox "The stand-in toolkit of oxecad_ui, without windows" "-L\${libdir} -luiox")
endif()
if(OXECAD_BUILD_QT)
  oxecad_pkg_config(oxecad_uiox_qt "The stand-in toolkit of oxecad_ui in Qt windows" "-L\${libdir} -luiox_qt"
    "oxecad_uiox = ${PROJECT_VERSION} Qt6Widgets >= 6.4")
endif()
