// Export and import of module entry points.
#pragma once

#if defined(_WINDOWS) || defined(_WIN64)
#define XI_EXPORT __declspec(dllexport)
#define XI_IMPORT __declspec(dllimport)
#elif defined(__GNUC__)
#define XI_EXPORT __attribute__((visibility("default")))
#define XI_IMPORT
#else
#error "no way to export entry points from a module is known for this compiler"
#endif
