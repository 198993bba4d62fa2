#pragma once

#include "Orvello/Platform/Desktop/Wakefulness.h"

#include <vector>

namespace Orvello::Testing {

class FakeWakefulness final : public Wakefulness {
public:
    void hold(Need need) override { held.push_back(need); }

    std::vector<Need> held; ///< In order.
};

} // namespace Orvello::Testing
