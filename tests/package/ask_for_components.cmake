# Asks the installed package for its components, each in a project of its own.
#
#   cmake -D PREFIX=… -D NO_QT=… -D WITH_QT=… -D WORK=… -D GENERATOR=… -P ask_for_components.cmake

# ask(COMPONENT EXPECTED TARGET OPTION...): whether a project that asks for a component and its target configures.
# NO_QT holds what stands in Qt's place and fails when it is looked at.
function(ask component expected target)
  set(folder "${WORK}/${component}")
  file(REMOVE_RECURSE "${folder}")
  file(WRITE "${folder}/CMakeLists.txt" "cmake_minimum_required(VERSION 3.25)
project(asks LANGUAGES CXX)
find_package(oxecad_ui CONFIG REQUIRED COMPONENTS ${component})
if(NOT TARGET ${target})
  message(FATAL_ERROR \"there is no ${target}\")
endif()
")
  execute_process(COMMAND ${CMAKE_COMMAND} -S "${folder}" -B "${folder}/build" -G "${GENERATOR}"
    "-DCMAKE_PREFIX_PATH=${PREFIX}" ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(expected STREQUAL "found" AND NOT result EQUAL 0)
    message(FATAL_ERROR "The component ${component} was not found:\n${output}")
  elseif(NOT expected STREQUAL "found" AND NOT output MATCHES "${expected}")
    message(FATAL_ERROR "The component ${component} should have failed with \"${expected}\":\n${output}")
  endif()
endfunction()

ask(ui found oxecad::ui "-DQt6_DIR=${NO_QT}")
ask(uiox found oxecad::uiox "-DQt6_DIR=${NO_QT}")
ask(none "There is no component \"none\"" oxecad::ui "-DQt6_DIR=${NO_QT}")
if(WITH_QT)
  ask(qt found oxecad::uiox_qt)
  ask(qt "Qt was looked for" oxecad::uiox_qt "-DQt6_DIR=${NO_QT}")
else()
  ask(qt "There is no component \"qt\"" oxecad::uiox_qt "-DQt6_DIR=${NO_QT}")
endif()
