#include "Tests/Support/WindowServerStandIn.h"

using namespace Orvello::Testing::WindowServerStandIn;

extern "C" std::int32_t CGSNewRegionWithRect(const Rect* rect, const void** region)
{
    if (state().regionError == 0)
        *region = made(*rect, "new");
    return state().regionError;
}
