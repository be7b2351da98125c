# Compiles one locale in UTF-8 into a folder, unless it is there.
file(MAKE_DIRECTORY "${FOLDER}")
set(made "${FOLDER}/${LOCALE}.utf8")
if(EXISTS "${made}/LC_CTYPE")
  return()
endif()
# Its warnings are about the locale's own sources; what counts is that it can be used.
execute_process(COMMAND "${LOCALEDEF}" -c -i "${LOCALE}" -f UTF-8 "${made}" OUTPUT_QUIET ERROR_QUIET)
if(NOT EXISTS "${made}/LC_CTYPE")
  message(FATAL_ERROR "${LOCALE} could not be made from the sources in /usr/share/i18n")
endif()
