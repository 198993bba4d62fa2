#error "macOS has no sys/eventfd.h"
