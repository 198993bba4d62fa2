#pragma once

// No 128-bit floating point, whatever glibc's header makes of this compiler.
#define __HAVE_FLOAT128 0
#define __HAVE_DISTINCT_FLOAT128 0
#define __HAVE_FLOAT64X 0
#define __HAVE_FLOAT64X_LONG_DOUBLE 0

#include <bits/floatn-common.h>
