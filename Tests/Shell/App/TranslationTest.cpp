#include "Orvello/Shell/App/Translation.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

/// A program that speaks German, Arabic, and the Portuguese and Chinese of one country each.
class TranslationTest : public ::testing::Test {
protected:
    TranslationTest()
    {
        for (const auto* const language : { u"ar", u"de", u"pt_BR", u"zh_CN" })
            EXPECT_TRUE(QFile::copy(u":/Test/Word.qm"_s,
                m_folder.filePath(u"orvello_%1.qm"_s.arg(QString::fromUtf16(language)))));
    }
    ~TranslationTest() override
    {
        qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    /// The file that the program speaks for someone who reads these languages; empty for none.
    QString spokenTo(const QStringList& languages)
    {
        qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
        installTranslation(*QCoreApplication::instance(), languages, m_folder.path());
        for (const auto* const translator :
            QCoreApplication::instance()->findChildren<QTranslator*>()) {
            if (translator->filePath().startsWith(m_folder.path()))
                return QFileInfo(translator->filePath()).completeBaseName();
        }
        return {};
    }

private:
    const QTemporaryDir m_folder;
};

TEST_F(TranslationTest, speaksTheUsersLanguage)
{
    EXPECT_EQ(spokenTo({ u"de"_s }), u"orvello_de");

    EXPECT_EQ(QCoreApplication::translate("TranslationTest", "word"), u"other word");
}

TEST_F(TranslationTest, speaksALanguageOfAnotherCountry)
{
    EXPECT_EQ(spokenTo({ u"de-AT"_s, u"de-Latn-AT"_s }), u"orvello_de");
    EXPECT_EQ(spokenTo({ u"pt-PT"_s }), u"orvello_pt_BR");
    EXPECT_EQ(spokenTo({ u"pt-BR"_s }), u"orvello_pt_BR");
    EXPECT_EQ(spokenTo({ u"zh-SG"_s }), u"orvello_zh_CN");
}

TEST_F(TranslationTest, speaksEnglishInAnotherScriptsPlace)
{
    EXPECT_EQ(spokenTo({ u"zh-TW"_s }), u"");
    EXPECT_EQ(spokenTo({ u"zh-Hant-HK"_s }), u"");
}

TEST_F(TranslationTest, speaksTheFirstOfTheUsersLanguagesThatItSpeaks)
{
    EXPECT_EQ(spokenTo({ u"nb-NO"_s, u"de-DE"_s, u"en"_s }), u"orvello_de");
    EXPECT_EQ(spokenTo({ u"nb-NO"_s, u"sv"_s }), u"");
}

TEST_F(TranslationTest, speaksEnglishToThoseWhoPreferIt)
{
    EXPECT_EQ(spokenTo({ u"en-GB"_s, u"de"_s }), u"");
    EXPECT_EQ(spokenTo({ u"C"_s }), u"");
    EXPECT_EQ(spokenTo({}), u"");
}

TEST_F(TranslationTest, laysWindowsOutAsTheLanguageIsRead)
{
    EXPECT_EQ(spokenTo({ u"ar-EG"_s }), u"orvello_ar");
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);

    EXPECT_EQ(spokenTo({ u"de"_s }), u"orvello_de");
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

TEST_F(TranslationTest, bringsSixLanguages)
{
    EXPECT_EQ(QDir(u":/Orvello/Translations"_s).entryList({ u"*.qm"_s }, QDir::Files, QDir::Name),
        QStringList({ u"orvello_de.qm"_s, u"orvello_es.qm"_s, u"orvello_fr.qm"_s,
            u"orvello_ja.qm"_s, u"orvello_pt_BR.qm"_s, u"orvello_zh_CN.qm"_s }));
}

} // namespace
} // namespace Orvello
