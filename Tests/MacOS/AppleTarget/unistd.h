#pragma once

// macOS declares none of these.
#define dup3 dup3_of_linux
#define environ environ_of_linux
#define fdatasync fdatasync_of_linux
#define gettid gettid_of_linux
#define pipe2 pipe2_of_linux
#include_next <unistd.h>
#undef dup3
#undef environ
#undef fdatasync
#undef gettid
#undef pipe2
