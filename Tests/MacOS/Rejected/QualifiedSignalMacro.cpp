// rejects: expected unqualified-id
#include <csignal>

int empty(sigset_t* set) { return ::sigemptyset(set); }
