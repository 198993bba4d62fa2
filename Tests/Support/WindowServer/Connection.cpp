#include "Tests/Support/WindowServerStandIn.h"

using namespace Orvello::Testing::WindowServerStandIn;

extern "C" std::uint32_t CGSMainConnectionID() { return connection; }
