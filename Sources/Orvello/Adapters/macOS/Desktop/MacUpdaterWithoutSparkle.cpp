#include "Orvello/Adapters/macOS/Desktop/AbsentUpdater.h"
#include "Orvello/Adapters/macOS/Desktop/MacUpdater.h"

namespace Orvello {

std::unique_ptr<Updater> makeMacUpdater()
{
    return std::make_unique<AbsentUpdater>(
        QStringLiteral("Sparkle.framework is not in this build"));
}

} // namespace Orvello
