#pragma once

#include "Orvello/Platform/DesktopServices.h"

#include <QList>
#include <QStringList>

namespace Orvello::Testing {

/// Remembers what it was asked for.
class FakeDesktopServices final : public DesktopServices {
public:
    void activateApplication() override { ++activations; }
    bool open(const QUrl& url) override
    {
        opened.append(url);
        return hasPrograms;
    }
    void reveal(const QString& path) override { revealed.append(path); }

    int activations = 0;
    QList<QUrl> opened;
    QStringList revealed;
    bool hasPrograms = true;
};

} // namespace Orvello::Testing
