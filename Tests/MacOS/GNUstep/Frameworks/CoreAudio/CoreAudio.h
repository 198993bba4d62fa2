#pragma once

#include "Tests/MacOS/Declarations/CoreAudio/CoreAudio.h"
