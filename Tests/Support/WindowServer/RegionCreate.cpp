#include "Tests/Support/WindowServerStandIn.h"

using namespace Orvello::Testing::WindowServerStandIn;

extern "C" const void* CGRegionCreateWithRect(Rect rect)
{
    return state().refusesRegions ? nullptr : made(rect, "create");
}
