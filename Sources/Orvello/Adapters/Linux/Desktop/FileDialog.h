#pragma once

#include "Orvello/Platform/Desktop/OpenPanel.h"

namespace Orvello {

/// The desktop's own file dialog, where its platform theme or portal has one, else Qt's.
class FileDialog final : public OpenPanel {
public:
    std::optional<QString> chooseFile(
        const QString& message, const QList<FileKind>& kinds) override;
    std::optional<NewFile> chooseNewFile(
        const QString& message, const QString& name, const QList<FileKind>& kinds) override;
};

} // namespace Orvello
