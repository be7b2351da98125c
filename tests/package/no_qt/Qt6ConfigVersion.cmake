# Stands where Qt would be found, and is read before anything of it.
message(FATAL_ERROR "Qt was looked for")
