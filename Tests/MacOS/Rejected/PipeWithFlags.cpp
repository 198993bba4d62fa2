// rejects: no member named 'pipe2' in the global namespace
#include <fcntl.h>
#include <unistd.h>

int open(int* ends) { return ::pipe2(ends, O_CLOEXEC); }
