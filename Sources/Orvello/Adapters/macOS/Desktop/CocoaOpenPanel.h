#pragma once

#include "Orvello/Platform/Desktop/OpenPanel.h"

namespace Orvello {

class CocoaOpenPanel final : public OpenPanel {
public:
    std::optional<QString> chooseFile(
        const QString& message, const QList<FileKind>& kinds) override;
    std::optional<NewFile> chooseNewFile(
        const QString& message, const QString& name, const QList<FileKind>& kinds) override;
};

} // namespace Orvello
