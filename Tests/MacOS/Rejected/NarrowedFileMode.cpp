// rejects: implicit conversion loses integer precision: 'unsigned int' to 'mode_t'
#include <sys/stat.h>

mode_t regular(unsigned bits) { return bits; }
