// rejects: use of undeclared identifier 'environ'
#include <unistd.h>

const char* first() { return *environ; }
