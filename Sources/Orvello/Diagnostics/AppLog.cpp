#include "Orvello/Diagnostics/AppLog.h"
