// The services that follow a slideshow, on the real adapters, without the prompter's window: prints
// one line of JSON for everything that they publish. Arguments: the helper program, and the .pptx
// file that is imported first. The input line "import" imports what is open in Impress, "allow" and
// "disallow" say whether that is asked at all.

#include "Orvello/Adapters/Linux/Desktop/LinuxWorkspace.h"
#include "Orvello/Adapters/Linux/Desktop/X11WindowServer.h"
#include "Orvello/Adapters/Linux/Desktop/X11Windows.h"
#include "Orvello/Adapters/Portable/QtChildProcess.h"
#include "Orvello/Adapters/Portable/QtHelperProcess.h"
#include "Orvello/Adapters/Portable/QtTimeSource.h"
#include "Orvello/Library/Import/LiveDeckImport.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Presentations/Slideshow/DeckController.h"
#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"
#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeMicActivity.h"
#include "Tests/Support/FakeUserDefaults.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaEnum>
#include <QSocketNotifier>

#include <iostream>
#include <string>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Orvello {
namespace {

void say(const QString& what, const QJsonValue& value)
{
    std::cout << QJsonDocument(QJsonObject { { what, value } })
                     .toJson(QJsonDocument::Compact)
                     .toStdString()
              << std::endl;
}

QString stateName(SlideSyncService::State state)
{
    return QString::fromLatin1(
        QMetaEnum::fromType<SlideSyncService::State>().valueToKey(static_cast<int>(state)));
}

QJsonArray notesOf(const Script& script)
{
    QJsonArray notes;
    for (const SlideNote& slide : script.slides.value_or(QList<SlideNote>()))
        notes.append(QJsonArray { slide.index, slide.title.value_or(QString()), slide.notes });
    return notes;
}

class SlideFollower final : public QObject {
public:
    explicit SlideFollower(const QString& helperPath)
        : m_helper(u"/usr/bin/python3"_s, { helperPath, u"serve"_s })
        , m_impressRow(m_presenters.add(m_impress.row()))
    {
        connect(&m_monitor, &PresentationMonitor::isPresentingChanged, this,
            [this] { say(u"presenting"_s, m_monitor.isPresenting()); });
        connect(&m_sync, &SlideSyncService::stateChanged, this,
            [this] { say(u"state"_s, stateName(m_sync.state())); });
        connect(&m_deck, &DeckController::slideChangeTokenChanged, this,
            [this] { say(u"text"_s, m_deck.promptText()); });
        connect(&m_deck.presentedDeck(), &PresentedDeck::changed, this, [this] {
            say(u"other deck"_s,
                m_deck.presentedDeck().isOther() ? QJsonValue(m_deck.presentedDeck().name())
                                                 : QJsonValue(false));
        });
        connect(&m_impress, &ImpressPresenter::adviceNeeded, this,
            [this] { say(u"advice"_s, m_impress.obstacle()); });
        connect(&m_input, &QSocketNotifier::activated, this, [this] { obey(); });
    }

    void start(const QString& deckPath)
    {
        const auto imported = m_library.importPptx(deckPath);
        say(u"file"_s,
            imported ? QJsonValue(notesOf(*m_library.activeScript())) : QJsonValue(false));
        m_monitor.start();
        m_sync.setActive(true);
    }

private:
    /// Several lines may have come at once.
    void obey()
    {
        do {
            std::string command;
            if (std::getline(std::cin, command))
                obey(command);
            else
                QCoreApplication::quit();
        } while (std::cin && std::cin.rdbuf()->in_avail() > 0);
    }

    void obey(const std::string& command)
    {
        if (command == "import")
            m_import.importFromOpenDeck(
                m_impressRow, [this](const LiveDeckImport::Imported& imported) {
                    say(u"live"_s,
                        imported ? QJsonValue(notesOf(*m_library.activeScript()))
                                 : QJsonValue(imported.error().description()));
                });
        else if (command == "allow" || command == "disallow")
            m_impress.setAllowed(command == "allow");
    }

    QtTimeSource m_time;
    Testing::FakeUserDefaults m_defaults;
    Testing::FakeFolders m_folders;
    Testing::FakeMicActivity m_microphone;
    QtChildProcess m_childProcess;
    AppleScriptRunner m_appleScript { m_childProcess };
    QtHelperProcess m_helper;
    PresenterTable m_presenters;
    X11Windows m_windows;
    LinuxWorkspace m_workspace { m_windows };
    X11WindowServer m_windowServer { m_windows };
    SettingsStore m_settings { m_defaults };
    LibraryStore m_library { m_defaults, m_folders, m_time, {} };
    PresentationMonitor m_monitor { { m_presenters, m_workspace, m_windowServer, m_microphone,
        m_time } };
    ImpressPresenter m_impress { m_helper, m_monitor, m_defaults };
    const PresenterApp& m_impressRow;
    SlideSyncService m_sync { m_monitor, m_presenters, m_time };
    DeckController m_deck { m_library, m_settings, m_sync };
    LiveDeckImport m_import { m_library, m_workspace, m_appleScript };
    QSocketNotifier m_input { STDIN_FILENO, QSocketNotifier::Read };
};

} // namespace
} // namespace Orvello

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false); // A stream with a buffer of its own says what is left in it.
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    Orvello::SlideFollower follower(arguments[1]);
    follower.start(arguments[2]);
    return QCoreApplication::exec();
}
