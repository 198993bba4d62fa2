#include "Tests/Support/WindowServerStandIn.h"

namespace Orvello::Testing::WindowServerStandIn {

State& state()
{
    static State instance;
    return instance;
}

const void* made(const Rect& rect, const char* maker)
{
    ++state().regionsMade;
    state().regionMakersUsed.emplace_back(maker);
    return new Rect(rect);
}

} // namespace Orvello::Testing::WindowServerStandIn

using namespace Orvello::Testing::WindowServerStandIn;

extern "C" void CFRelease(const void* object)
{
    ++state().regionsReleased;
    delete static_cast<const Rect*>(object);
}
