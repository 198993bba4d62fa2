#include "Orvello/Adapters/macOS/Early/LaunchServicesInstance.h"

namespace Orvello {

using namespace Qt::StringLiterals;

RunningInstance::Outcome LaunchServicesInstance::claim(const ProgramStart&) { return {}; }

void LaunchServicesInstance::listen(Handlers handlers)
{
    m_openedUrls.emplace(u"orvello"_s); // The scheme of the bundle's Info.plist.
    QObject::connect(&*m_openedUrls, &OpenedUrls::opened, &*m_openedUrls, handlers.opened);
}

} // namespace Orvello
