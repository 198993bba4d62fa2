#include "Orvello/Shell/App/Translation.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

/// The application with this edition's words, which go again with the test.
class TranslationTest : public ::testing::Test {
protected:
    ~TranslationTest() override
    {
        QLocale::setDefault(QLocale::c());
        removeTranslation();
    }

    static void removeTranslation()
    {
        qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
    }

    static void installFor(const QLocale& locale)
    {
        removeTranslation();
        QLocale::setDefault(locale);
        installTranslation(*QCoreApplication::instance());
    }

    static QString footnote()
    {
        return QCoreApplication::translate(
            "EditorPage", "Shown in the prompter · autosaved locally, nothing leaves your Mac");
    }
};

TEST_F(TranslationTest, saysNothingOfAMacOnLinux)
{
    EXPECT_TRUE(footnote().endsWith(QStringLiteral("your Mac")));

    installFor(QLocale(QLocale::English));

    EXPECT_TRUE(footnote().endsWith(QStringLiteral("nothing leaves your computer")));
}

TEST_F(TranslationTest, fallsBackOnEnglishForALanguageWithoutAFile)
{
    for (const QLocale& locale : { QLocale::c(), QLocale(QLocale::German), QLocale(u"ja_JP") }) {
        installFor(locale);

        EXPECT_TRUE(footnote().endsWith(QStringLiteral("nothing leaves your computer")));
    }
}

TEST_F(TranslationTest, keepsTheWordsThatAreTrueEverywhere)
{
    // Beside each of them a text of the same context that is adapted, because in a context that
    // nobody has every text stays as it is.
    struct Page {
        const char* context;
        const char* kept;
        const char* adapted;
    };
    installFor(QLocale(QLocale::English));

    for (const Page& page : { Page { "TourSetupPage", "Start / pause", "Menu bar" },
             Page { "TourWelcomePage", "Follows your voice", "Invisible on screen shares" },
             Page { "ShortcutSettings", "Back to top", "⌥⌘R" } }) {
        EXPECT_EQ(
            QCoreApplication::translate(page.context, page.kept), QString::fromUtf8(page.kept));
        EXPECT_NE(QCoreApplication::translate(page.context, page.adapted),
            QString::fromUtf8(page.adapted));
    }
}

} // namespace
} // namespace Orvello
