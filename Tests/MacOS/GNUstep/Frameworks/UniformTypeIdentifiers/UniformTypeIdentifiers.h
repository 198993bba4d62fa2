#pragma once

#include "Tests/MacOS/Declarations/UniformTypeIdentifiers/UniformTypeIdentifiers.h"
