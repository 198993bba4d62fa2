#pragma once

#include <GL/gl.h>
