#pragma once

#include "Orvello/Platform/OpenPanel.h"

namespace Orvello {

class QtOpenPanel final : public OpenPanel {
public:
    std::optional<QString> chooseFile(const QString& message, const FileKind& kind) override;
};

} // namespace Orvello
