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

# oxecad_install_targets(COMPONENT TARGET...): libraries, found by one another wherever the prefix lies.
function(oxecad_install_targets component)
  foreach(target IN LISTS ARGN)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "SHARED_LIBRARY")
      set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
    endif()
  endforeach()
  install(TARGETS ${ARGN} EXPORT oxecad_ui-${component}
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development)
  install(EXPORT oxecad_ui-${component} NAMESPACE oxecad:: DESTINATION "${oxecad_package_dir}" COMPONENT development)
endfunction()

set(platform_libraries "")
if(NOT OXECAD_PLATFORM_DIR)
  set(platform_libraries oxkutils oxecadutils rtlcoreox uitoolsox oxcore oxk oxg uiox)
  install(DIRECTORY platform/ DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT development
    FILES_MATCHING PATTERN "*.h" PATTERN "detail" EXCLUDE PATTERN "uiox_qt" EXCLUDE)
endif()
oxecad_install_targets(ui oxecad_ui oxecad_platform ${platform_libraries})

if(OXECAD_BUILD_QT)
  oxecad_install_targets(qt uiox_qt)
  install(FILES platform/uiox_qt/QtFront.h platform/uiox_qt/Export.h
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/uiox_qt" COMPONENT development)
endif()

configure_package_config_file(cmake/oxecad_uiConfig.cmake.in "${PROJECT_BINARY_DIR}/oxecad_uiConfig.cmake"
  INSTALL_DESTINATION "${oxecad_package_dir}" NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/oxecad_uiConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/oxecad_uiConfig.cmake" "${PROJECT_BINARY_DIR}/oxecad_uiConfigVersion.cmake"
  DESTINATION "${oxecad_package_dir}" COMPONENT development)

# The pkg-config file finds its prefix from where it lies.
file(RELATIVE_PATH oxecad_prefix_from_pc "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" oxecad_prefix_from_pc "${oxecad_prefix_from_pc}")
set(oxecad_pc_libraries "")
foreach(library IN LISTS platform_libraries)
  string(APPEND oxecad_pc_libraries " -l${library}")
endforeach()
configure_file(cmake/oxecad_ui.pc.in "${PROJECT_BINARY_DIR}/oxecad_ui.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/oxecad_ui.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT development)
