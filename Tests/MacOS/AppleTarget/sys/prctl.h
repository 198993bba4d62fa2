#error "macOS has no sys/prctl.h"
