#pragma once

#include "Orvello/Voice/MicActivity.h"

namespace Orvello::Testing {

/// Another process captures input exactly while a test says so.
class FakeMicActivity final : public MicActivity {
public:
    bool otherProcessCapturingInput() override { return otherProcessCaptures; }

    bool otherProcessCaptures = false;
};

} // namespace Orvello::Testing
