#pragma once

#include "Tests/MacOS/Declarations/AVFoundation/AVFoundation.h"
