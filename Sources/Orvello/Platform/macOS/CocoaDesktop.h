#pragma once

#include "Orvello/Platform/Desktop.h"

namespace Orvello {

class CocoaDesktop final : public Desktop {
public:
    void activateApplication() override;
    bool open(const QUrl& url) override;
    void reveal(const QString& path) override;
};

} // namespace Orvello
