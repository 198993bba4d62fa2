#include "Orvello/Library/Records/WelcomeScript.h"
#include "Orvello/Platform/Desktop/Compositing.h"
#include "Orvello/Prompting/Engine/ReadingPace.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Shell/App/Translation.h"
#include "Orvello/Shell/Commands/Command.h"
#include "Orvello/Shell/Updates/UpdateController.h"
#include "Orvello/Shell/Windows/LibraryWindow.h"
#include "Orvello/Shell/Windows/OnboardingWindowController.h"
#include "Orvello/Shell/Windows/SettingsWindow.h"
#include "Tests/Support/FactsOf.h"
#include "Tests/Support/FakeHotKeys.h"
#include "Tests/Support/FakeUpdater.h"
#include "Tests/Support/FakeWindowChrome.h"
#include "Tests/Support/LibraryServices.h"
#include "Tests/Support/ViewItems.h"
#include "Tests/Voice/VoiceFixture.h"

#include <QRegularExpression>
#include <QTranslator>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using namespace Orvello::Testing;

/// The texts of the Linux edition, in one language after the other.
class TruthfulTextsTest : public VoiceFixture, public ::testing::WithParamInterface<const char*> {
protected:
    TruthfulTextsTest()
    {
        keys.modifiersLabel = u"Alt+Super+"_s;
        if (!isEnglish())
            installTranslation(*QCoreApplication::instance(), { QString::fromLatin1(GetParam()) },
                u":/Orvello/Translations"_s);
    }
    ~TruthfulTextsTest() override
    {
        qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
    }

    static bool isEnglish() { return GetParam() == std::string("en"); }

    static void expectTrue(const QString& text)
    {
        // What only a Mac has, in every language; what Macs call their parts, in each.
        static const QRegularExpression untrue(
            u"⌥|⌘|macOS|\\bMacs?\\b|MacBook|Keynote|QuickTime|Finder|"
            "System Settings|menu bar|Systemeinstellungen|Menüleiste|Ajustes del Sistema|"
            "barra de menús|Réglages Système|barre des menus|システム設定|メニューバー|"
            "Ajustes do Sistema|barra de menus|系统设置|菜单栏|"
            // What nobody can promise where windows cannot be hidden: how programs capture one.
            "window never does|Fenster nie|ventana, nunca\\.|fenêtre, jamais\\.|決して見えません|"
            "janela, nunca\\.|窗口则绝不会|zero risk|never sees your notes|never your notes|"
            "nie Ihre Notizen|Ihre Notizen nie|nunca tus notas|nunca verá tus notas|"
            "jamais vos notes|ノートは見えません|nunca suas anotações|nunca verá suas anotações|"
            "绝不会看到你的备注"_s,
            QRegularExpression::CaseInsensitiveOption
                | QRegularExpression::UseUnicodePropertiesOption);
        EXPECT_FALSE(untrue.match(text).hasMatch()) << GetParam() << ": " << text.toStdString();
    }
    static void expectTrue(const QQuickWindow& window)
    {
        for (const QQuickItem* const item : visibleItems(window))
            expectTrue(accessibleName(*item));
        const QStringList texts = visibleTexts(window);
        EXPECT_GT(texts.size(), 5);
        for (const QString& text : texts)
            expectTrue(text);
    }

    const Facts facts = factsOfALinuxDesktop();
    FakeHotKeys keys;
    FakeUpdater updater;
    Compositing compositing;
    UpdateController updates { { updater, defaults, [] {} } };
    ScrollEngine scrolling { settings, time };
    ReadingPace pace { settings, scrolling, time };
};

TEST_P(TruthfulTextsTest, speaksTheLanguage)
{
    EXPECT_EQ(
        WelcomeScript::body(facts).contains(u"This is your private teleprompter"_s), isEnglish());
}

TEST_P(TruthfulTextsTest, namesNothingInTheSettingsThatTheMachineLacks)
{
    SettingsWindow window({ settings, *engine, pace, updates, keys, compositing, facts });
    window.view().show();
    drainEvents();

    expectTrue(window.view());
}

TEST_P(TruthfulTextsTest, namesNothingInTheScriptsWindowThatTheMachineLacks)
{
    LibraryServices services { { LibraryServices::script(u"Talk"_s, u"Hello all"_s) } };
    services.facts = facts;
    services.presenters = PresenterTable();
    services.presenters.add(services.impress.row()); // As the program offers them there.
    LibraryWindow window(services.ofWindow());
    window.view().show();
    drainEvents();

    expectTrue(window.view());
    const DeckImports imports(services.ofWindow());
    for (const QString& title : imports.titles())
        expectTrue(title);
}

TEST_P(TruthfulTextsTest, namesNothingInTheTourThatTheMachineLacks)
{
    FakeWindowChrome chrome;
    workspace.installed.append(u"us.zoom.xos"_s);
    for (const char* const page : { "0", "1", "2" }) {
        qputenv("ORVELLO_ONBOARDING_PAGE", page);
        OnboardingWindowController window(
            { settings, workspace, chrome, keys, *engine, facts }, [] {});
        window.view().show();
        drainEvents();

        expectTrue(window.view());
    }
    qunsetenv("ORVELLO_ONBOARDING_PAGE");
}

TEST_P(TruthfulTextsTest, namesNothingInMenusAndTheFirstScriptThatTheMachineLacks)
{
    expectTrue(WelcomeScript::body(facts));
    for (const Command& command : Commands::all())
        expectTrue(Commands::description(command));
}

INSTANTIATE_TEST_SUITE_P(Languages, TruthfulTextsTest,
    ::testing::Values("en", "de", "es", "fr", "ja", "pt-BR", "zh-CN"),
    [](const auto& test) { return std::string(test.param).substr(0, 2); });

} // namespace
} // namespace Orvello
