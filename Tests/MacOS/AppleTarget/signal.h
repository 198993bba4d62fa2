#pragma once

#include_next <signal.h>

// Macros there, so that a qualified name is a syntax error.
#define sigemptyset(set) (*(set) = 0, 0)
#define sigfillset(set) (*(set) = ~static_cast<sigset_t>(0), 0)
#define sigaddset(set, signal) (*(set) |= 1U << ((signal)-1), 0)
#define sigdelset(set, signal) (*(set) &= ~(1U << ((signal)-1)), 0)
#define sigismember(set, signal) ((*(set) & (1U << ((signal)-1))) != 0)
