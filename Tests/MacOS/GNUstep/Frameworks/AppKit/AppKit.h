#pragma once

#include "Tests/MacOS/Declarations/AppKit/AppKit.h"
