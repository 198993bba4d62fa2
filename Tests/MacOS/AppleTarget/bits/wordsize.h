#pragma once

// glibc asks the processor's macros, of which it knows only its own.
#define __WORDSIZE 64
#define __WORDSIZE_TIME64_COMPAT32 0
#define __SYSCALL_WORDSIZE 64
