#include "Tests/Support/WindowServerStandIn.h"

using namespace Orvello::Testing::WindowServerStandIn;

extern "C" std::int32_t CGSNewRegionWithRect(const Rect* rect, const void** region)
{
    static const Rect unusable {};
    *region = state().regionError == 0 ? made(*rect, "new") : &unusable;
    return state().regionError;
}
