#pragma once

#include "Orvello/Platform/Desktop/OpenPanel.h"

namespace Orvello::Testing {

/// A panel in which the user has chosen already.
class FakeOpenPanel final : public OpenPanel {
public:
    std::optional<QString> chooseFile(const QString& message, const QList<FileKind>& kinds) override
    {
        shownMessage = message;
        shownKinds = kinds;
        ++timesShown;
        return choice;
    }

    std::optional<QString> choice; ///< Nothing: the user cancels.

    QString shownMessage;
    QList<FileKind> shownKinds;
    int timesShown = 0;
};

} // namespace Orvello::Testing
