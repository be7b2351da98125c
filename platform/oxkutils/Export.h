/// \file
/// Marks what leaves the shared libraries of the platform. Everything else stays hidden.
#ifndef OXECAD_OXKUTILS_EXPORT_H
#define OXECAD_OXKUTILS_EXPORT_H

/// \def OXECAD_PLATFORM_EXPORT
/// Stands before each class and function that a shared library of the platform exports.
#if defined(__GNUC__)
#define OXECAD_PLATFORM_EXPORT __attribute__((visibility("default")))
#else
#define OXECAD_PLATFORM_EXPORT
#endif

#endif
