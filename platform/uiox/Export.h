/// \file
/// Marks what leaves libuiox.so. Everything else stays hidden.
#ifndef OXECAD_UIOX_EXPORT_H
#define OXECAD_UIOX_EXPORT_H

/// Stands before each class and function that libuiox.so exports.
#define OXECAD_UIOX_API __attribute__((visibility("default")))

#endif
