# Runs an example and compares what it prints:  cmake -D PROGRAM=… -D EXPECTED=… -P RunExample.cmake
execute_process(COMMAND "${PROGRAM}" RESULT_VARIABLE result OUTPUT_VARIABLE printed ERROR_VARIABLE errors)
file(READ "${EXPECTED}" expected)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "It ended with ${result}:\n${printed}${errors}")
endif()
if(NOT printed STREQUAL expected)
  message(FATAL_ERROR "It should print\n${expected}and prints\n${printed}${errors}")
endif()
