/// \file
/// Marks what leaves libuiox_qt.so. Everything else stays hidden.
#ifndef OXECAD_UIOX_QT_EXPORT_H
#define OXECAD_UIOX_QT_EXPORT_H

/// Stands before each class and function that libuiox_qt.so exports.
#define OXECAD_UIOX_QT_API __attribute__((visibility("default")))

#endif
