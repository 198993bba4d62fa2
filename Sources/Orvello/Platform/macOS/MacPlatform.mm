#include "Orvello/Platform/Platform.h"

#include "Orvello/Platform/PosixProcessSignals.h"
#include "Orvello/Platform/QtTimeSource.h"
#include "Orvello/Platform/macOS/CocoaFolders.h"
#include "Orvello/Platform/macOS/CocoaPanel.h"
#include "Orvello/Platform/macOS/CocoaScreens.h"
#include "Orvello/Platform/macOS/CocoaUserDefaults.h"
#include "Orvello/Platform/macOS/OrvelloApplication.h"
#include "Orvello/Platform/macOS/UnifiedLog.h"

namespace Orvello {

namespace {

class MacPlatform final : public Platform {
public:
    TimeSource& time() override { return m_time; }
    UserDefaults& userDefaults() override { return m_userDefaults; }
    Folders& folders() override { return m_folders; }
    SystemLog& systemLog() override { return m_systemLog; }
    ProcessSignals& processSignals() override { return m_processSignals; }
    Screens& screens() override { return m_screens; }

    QString prepareApplication() override
    {
        makeApplicationObject();
        return {};
    }

    std::unique_ptr<NativePanel> makePanel(QWindow& view) override
    {
        return std::make_unique<CocoaPanel>(view, m_screens);
    }

private:
    QtTimeSource m_time;
    CocoaFolders m_folders;
    CocoaUserDefaults m_userDefaults;
    UnifiedLog m_systemLog;
    PosixProcessSignals m_processSignals;
    CocoaScreens m_screens;
};

} // namespace

/// The user defaults read the launch arguments by themselves.
std::unique_ptr<Platform> Platform::create(const QStringList&)
{
    return std::make_unique<MacPlatform>();
}

} // namespace Orvello
