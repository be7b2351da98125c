# Compiles a source as it is, which must do, and then once for each of its cases, each of which must fail and say why.
#
#   cmake -D COMPILER=… -D ROOT=… -D SOURCE=… -P CompileMisuse.cmake
#
# A case is a line "#if defined(NAME)  // says: WORDS" (or #elif); the words are a regular expression.
function(compile result_name output_name)
  execute_process(COMMAND "${COMPILER}" -std=c++20 -fsyntax-only "-I${ROOT}" ${ARGN} "${SOURCE}"
    RESULT_VARIABLE result ERROR_VARIABLE output)
  set(${result_name} "${result}" PARENT_SCOPE)
  set(${output_name} "${output}" PARENT_SCOPE)
endfunction()

compile(result output)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "Without any misuse it does not compile either:\n${output}")
endif()

file(STRINGS "${SOURCE}" cases REGEX "^#(el)?if defined\\([A-Z_]+\\)")
list(LENGTH cases count)
if(count LESS 10)
  message(FATAL_ERROR "Only ${count} cases were found")
endif()
set(failures 0)
foreach(case IN LISTS cases)
  if(NOT case MATCHES "defined\\(([A-Z_]+)\\) +// says: (.+)$")
    message(FATAL_ERROR "What should the compiler say? ${case}")
  endif()
  set(name "${CMAKE_MATCH_1}")
  set(words "${CMAKE_MATCH_2}")
  compile(result output "-D${name}")
  if(result EQUAL 0)
    message("${name} compiles")
    math(EXPR failures "${failures} + 1")
  elseif(NOT output MATCHES "${words}")
    message("${name} fails for another reason than \"${words}\":\n${output}")
    math(EXPR failures "${failures} + 1")
  endif()
endforeach()
if(failures GREATER 0)
  message(FATAL_ERROR "${failures} of ${count} cases")
endif()
message("${count} cases are refused")
