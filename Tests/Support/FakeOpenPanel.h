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

    std::optional<NewFile> chooseNewFile(
        const QString& message, const QString& name, const QList<FileKind>& kinds) override
    {
        suggestedName = name;
        newFile.path = chooseFile(message, kinds).value_or(QString());
        return newFile.path.isEmpty() ? std::optional<NewFile>() : newFile;
    }

    std::optional<QString> choice; ///< Nothing: the user cancels.
    NewFile newFile; ///< Of which kind the new file is to be; its path is the choice.
    QString suggestedName;

    QString shownMessage;
    QList<FileKind> shownKinds;
    int timesShown = 0;
};

} // namespace Orvello::Testing
