#pragma once

// API_AVAILABLE(macos(14.0)): the first system that has a declaration. Only clang knows the
// attribute, and only for an Apple target does it warn.
#ifdef __clang__
#define OS_AVAILABILITY_macos(version) macos, introduced = version
#define API_AVAILABLE(platform) __attribute__((availability(OS_AVAILABILITY_##platform)))
#else
#define API_AVAILABLE(platform)
#define _Nonnull
#define _Nullable
#endif
