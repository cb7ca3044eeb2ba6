// The export mark of the library's public classes and functions; everything else stays hidden.
#pragma once

#if defined(_WIN32)
#define TQ_EXPORT __declspec(dllexport)
#else
#define TQ_EXPORT __attribute__((visibility("default")))
#endif
