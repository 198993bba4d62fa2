#pragma once

#include "Tests/MacOS/Declarations/CoreGraphics/CoreGraphics.h"
