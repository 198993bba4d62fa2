// rejects: no member named 'st_mtim' in 'stat'
#include <sys/stat.h>

timespec changed(const struct stat& status) { return status.st_mtim; }
