# Compiles files one by one, as a stranger would who has nothing but them.
#
#   cmake -D COMPILER=… -D STANDARD=c++20 -D INCLUDES=a;b -D OPTIONS=… [-D FILES=…] [-D FOLDER=…] [-D HEADERS=…] -P CompileAlone.cmake
#
# FILES: sources; FOLDER: all sources below it; HEADERS: names to be included, each twice, by a source of its own.
set(includes)
foreach(folder IN LISTS INCLUDES)
  list(APPEND includes "-I${folder}")
endforeach()
if(FOLDER)
  file(GLOB_RECURSE found "${FOLDER}/*.cpp")
  list(APPEND FILES ${found})
endif()

set(failures 0)
set(compiled 0)
function(compile what source)
  execute_process(
    COMMAND "${COMPILER}" "-std=${STANDARD}" -pedantic-errors -fsyntax-only ${OPTIONS} ${includes} -x c++ "${source}"
    RESULT_VARIABLE result ERROR_VARIABLE errors)
  math(EXPR compiled "${compiled} + 1")
  if(NOT result EQUAL 0)
    message("${what} does not compile by itself:\n${errors}")
    math(EXPR failures "${failures} + 1")
  endif()
  set(compiled ${compiled} PARENT_SCOPE)
  set(failures ${failures} PARENT_SCOPE)
endfunction()

foreach(file IN LISTS FILES)
  compile("${file}" "${file}")
endforeach()
foreach(header IN LISTS HEADERS)
  string(MAKE_C_IDENTIFIER "${header}" name)
  set(source "${CMAKE_CURRENT_BINARY_DIR}/includes_${name}.cpp")
  file(WRITE "${source}" "#include <${header}>\n#include <${header}>\n")
  compile("${header}" "${source}")
  file(REMOVE "${source}")
endforeach()

if(compiled EQUAL 0)
  message(FATAL_ERROR "nothing was compiled")
endif()
if(failures GREATER 0)
  message(FATAL_ERROR "${failures} of ${compiled} failed")
endif()
message("${compiled} compiled")
