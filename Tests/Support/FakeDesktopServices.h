#pragma once

#include "Orvello/Platform/Desktop/DesktopServices.h"
#include "Tests/Support/Journal.h"

#include <QList>
#include <QStringList>

namespace Orvello::Testing {

/// Remembers what it was asked for.
class FakeDesktopServices final : public DesktopServices {
public:
    void activateApplication() override
    {
        note(journal, "application activated");
        ++activations;
    }
    bool open(const QUrl& url) override
    {
        opened.append(url);
        return hasPrograms;
    }
    void reveal(const QString& path) override { revealed.append(path); }

    Journal* journal = nullptr;
    int activations = 0;
    QList<QUrl> opened;
    QStringList revealed;
    bool hasPrograms = true;
};

} // namespace Orvello::Testing
