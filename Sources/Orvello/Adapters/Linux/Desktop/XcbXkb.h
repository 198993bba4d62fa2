#pragma once

// <xcb/xkb.h> has a field named like a C++ keyword. As a system header, because clang warns of a
// macro named so.
#pragma GCC system_header

#define explicit explicit_field
#include <xcb/xkb.h>
#undef explicit
