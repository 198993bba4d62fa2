// rejects: macOS has no sys/prctl.h
#include <sys/prctl.h>

int dieWithParent() { return prctl(PR_SET_PDEATHSIG, 9); }
