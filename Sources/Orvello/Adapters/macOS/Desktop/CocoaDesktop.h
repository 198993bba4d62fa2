#pragma once

#include "Orvello/Platform/Desktop/DesktopServices.h"

namespace Orvello {

class CocoaDesktop final : public DesktopServices {
public:
    void activateApplication() override;
    bool open(const QUrl& url) override;
    void reveal(const QString& path) override;
};

} // namespace Orvello
