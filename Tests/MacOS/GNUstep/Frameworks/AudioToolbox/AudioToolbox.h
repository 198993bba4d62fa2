#pragma once

#include "Tests/MacOS/Declarations/AudioToolbox/AudioToolbox.h"
