#pragma once

#include "Orvello/Library/Import/LiveDeckImport.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Presentations/Slideshow/DeckController.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Shell/Windows/PrompterWindow.h"
#include "Orvello/Voice/VoiceActivityEngine.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeChildProcess.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeMicrophonePermission.h"
#include "Tests/Support/FakeMicrophones.h"
#include "Tests/Support/FakeRawMicrophone.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/FakeVoiceProcessing.h"
#include "Tests/Support/SlideshowStage.h"

#include <string>
#include <vector>

namespace Orvello::Testing {

/// Every service that the prompter shows, over fakes, and what may happen to them.
class PrompterServices {
public:
    PrompterServices()
    {
        stage.monitor.start();
        drainEvents();
    }

    PrompterWindow::Services ofWindow(bool forceCapturable = false)
    {
        return { engine, settings, voice, stage.monitor, deck, library, openDecks, stage.time,
            forceCapturable };
    }

    void prompt(const QString& text)
    {
        library.updateActive(std::nullopt, text);
        drainEvents();
    }

    /// A deck of which slide tracking shows the first slide.
    void openDeck(const QList<SlideNote>& slides)
    {
        library.addDeck(QStringLiteral("Deck"), slides, QStringLiteral("Keynote"));
        sync.setActive(true);
        drainEvents();
    }

    void startSlideshow()
    {
        stage.presentKeynote();
        stage.time.advance(1.0);
        drainEvents();
    }

    /// Answers the question after the current slide, which is asked half a second from now.
    void showLiveSlide(int number)
    {
        stage.time.advance(0.5);
        stage.keynote.answer(QString::number(number));
        drainEvents();
    }
    /// A slideshow of a deck with this record is on its first slide, in a presenter that tells.
    void presentOtherDeck(const QString& record)
    {
        if (!impress.tellsDeck) {
            impress.tellsDeck = true;
            stage.presenters.add(impress.row());
        }
        stage.present(impress.row());
        stage.workspace.running.append(*stage.workspace.frontmost);
        stage.time.advance(1.5);
        impress.answer(QStringLiteral("1"));
        impress.answerDeck(record);
        drainEvents();
    }
    void refuseToTellTheSlide()
    {
        stage.time.advance(0.5);
        stage.keynote.fail(QStringLiteral("Not authorized to send Apple events. (-1743)"));
        drainEvents();
    }

    void setInCall(bool inCall)
    {
        stage.microphone.otherProcessCaptures = inCall;
        stage.time.advance(1.0);
        drainEvents();
    }

    void openMeetingApp()
    {
        stage.workspace.running = { { QStringLiteral("us.zoom.xos"), QStringLiteral("Zoom") } };
        stage.time.advance(1.0);
        drainEvents();
    }

    /// Turns Voice-Follow on and hears a sound until its level has settled.
    void hear(float amplitude)
    {
        engine.setVoiceFollowActive(true);
        voice.requestPermissionAndStart();
        drainEvents();
        const std::vector<float> samples(480, amplitude);
        constexpr int untilSettled = 100;
        for (int i = 0; i < untilSettled; ++i) {
            voiceProcessing.hear(samples);
            drainEvents();
        }
    }

    SlideshowStage stage;
    FakePresenter impress { QStringLiteral("LibreOffice Impress"), QStringLiteral("Impress"),
        QStringLiteral("libreoffice-impress") };
    FakeUserDefaults defaults;
    FakeFolders folders;
    SettingsStore settings { defaults };
    LibraryStore library { defaults, folders, stage.time, {} };
    SlideSyncService sync { stage.monitor, stage.presenters, stage.time };
    DeckController deck { library, settings, sync };
    ScrollEngine engine { settings, stage.time };
    FakeChildProcess process;
    AppleScriptRunner scriptRunner { process };
    LiveDeckImport openDecks { library, stage.workspace, scriptRunner };

    std::vector<std::string> journal;
    FakeMicrophonePermission permission;
    FakeVoiceProcessing voiceProcessing { journal };
    FakeRawMicrophone rawMicrophone { journal };
    FakeMicActivity otherMicrophoneUse;
    FakeMicrophones microphones;
    FakeWorkspace quietWorkspace;
    VoiceActivityEngine voice { settings,
        { stage.time, permission, voiceProcessing, rawMicrophone, otherMicrophoneUse, microphones,
            quietWorkspace } };
};

} // namespace Orvello::Testing
