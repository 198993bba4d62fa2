#pragma once

// What libc++ expects of the C library on macOS and glibc does not declare.
#include <locale.h>
#include <stddef.h>

extern "C" {
int snprintf_l(char* buffer, size_t size, locale_t locale, const char* format, ...);
int asprintf_l(char** buffer, locale_t locale, const char* format, ...);
int sscanf_l(const char* text, locale_t locale, const char* format, ...);
}
