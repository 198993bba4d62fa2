#pragma once

#include "Orvello/Library/Import/DeckFileUpdates.h"
#include "Orvello/Library/Import/LiveDeckImport.h"
#include "Orvello/Library/Records/UuidText.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Library/Window/DeckImports.h"
#include "Orvello/Presentations/Presenters/AppleScriptPresenters.h"
#include "Tests/Support/FactsOf.h"
#include "Tests/Support/FakeChildProcess.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeOpenPanel.h"
#include "Tests/Support/FakePresenter.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/FakeWorkspace.h"
#include "Tests/Support/ManualTimeSource.h"

namespace Orvello::Testing {

/// What the scripts window shows: the real library and the real imports on a scratch folder, with
/// every presentation application running.
struct LibraryServices {
    LibraryServices()
        : LibraryServices(QList<Script> {})
    {
    }

    /// On a stored library, of which the first script is active. An empty one becomes that of a
    /// first launch.
    explicit LibraryServices(const QList<Script>& stored)
        : library(defaultsWith(stored), folders, time, facts)
    {
        presenters.add(AppleScriptPresenters::keynote(scriptRunner));
        presenters.add(AppleScriptPresenters::powerPoint(scriptRunner));
        presenters.add(impress.row());
        for (const PresenterApp& app : presenters.apps())
            workspace.running.append(FakeWorkspace::application(app.bundleIdentifier));
    }

    DeckImports::Services ofWindow()
    {
        return { library, openDecks, files, updates, presenters, openPanel, facts };
    }

    static Script script(const QString& title, const QString& body)
    {
        return Script::create(title, body, { 5 });
    }

    static Script deck(const QString& title, const QString& source, const QList<SlideNote>& slides)
    {
        Script deck = script(title, joinedBody(slides));
        deck.slides = slides;
        deck.deckSource = source;
        return deck;
    }

    Facts facts = factsOfAMac();
    FakeFolders folders;
    FakeUserDefaults defaults;
    ManualTimeSource time;
    FakeWorkspace workspace;
    FakeChildProcess process;
    FakePresenter impress { QStringLiteral("LibreOffice Impress"), QStringLiteral("Impress"),
        QStringLiteral("libreoffice-impress") };
    FakeOpenPanel openPanel;
    AppleScriptRunner scriptRunner { process };
    PresenterTable presenters;
    LibraryStore library;
    LiveDeckImport openDecks { library, workspace, scriptRunner };
    DeckFileImport files { library };
    DeckFileUpdates updates { library, files, time };

private:
    /// The preferences of that library, which is on the disk then.
    UserDefaults& defaultsWith(const QList<Script>& scripts)
    {
        LibraryFile(folders).save(scripts);
        if (!scripts.isEmpty())
            defaults.stored.insert(
                QStringLiteral("activeScriptID"), UuidText::format(scripts.first().id));
        return defaults;
    }
};

} // namespace Orvello::Testing
