#pragma once

#include "Orvello/Platform/Desktop/Wakefulness.h"

#import <Foundation/Foundation.h>

namespace Orvello {

/// An activity, which App Nap and the display's sleep respect.
class CocoaWakefulness final : public Wakefulness {
public:
    CocoaWakefulness() = default;
    ~CocoaWakefulness() override { hold(Need::None); }
    CocoaWakefulness(const CocoaWakefulness&) = delete;
    CocoaWakefulness& operator=(const CocoaWakefulness&) = delete;

    void hold(Need need) override;

private:
    Need m_held = Need::None;
    id<NSObject> m_activity = nil;
};

} // namespace Orvello
