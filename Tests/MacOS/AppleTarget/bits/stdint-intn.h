#pragma once

#include <bits/types.h>

// int64_t is long long on macOS; what Qt and printf formats make of it must not depend on glibc.
typedef __int8_t int8_t;
typedef __int16_t int16_t;
typedef __int32_t int32_t;
typedef __INT64_TYPE__ int64_t;
