#pragma once

#include "Tests/MacOS/Declarations/Sparkle/Sparkle.h"
