#pragma once

#include_next <bits/typesizes.h>

// The widths that conversions between them depend on.
#undef __BLKSIZE_T_TYPE
#undef __DEV_T_TYPE
#undef __MODE_T_TYPE
#undef __NLINK_T_TYPE
#undef __OFF_T_TYPE
#undef __SUSECONDS_T_TYPE
#define __BLKSIZE_T_TYPE __S32_TYPE
#define __DEV_T_TYPE __S32_TYPE
#define __MODE_T_TYPE __U16_TYPE
#define __NLINK_T_TYPE __U16_TYPE
#define __OFF_T_TYPE long long
#define __SUSECONDS_T_TYPE __S32_TYPE
