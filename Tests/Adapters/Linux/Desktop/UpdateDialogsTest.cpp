#include "Orvello/Adapters/Linux/Desktop/UpdateDialogs.h"

#include "Tests/Support/EventLoop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTranslator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

/// Marks every text that is translated.
class Marks final : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return u'«' + QString::fromUtf8(text) + u'»';
    }
};

class UpdateDialogsTest : public ::testing::Test {
protected:
    static QList<QMessageBox*> open()
    {
        QList<QMessageBox*> dialogs;
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            auto* const dialog = qobject_cast<QMessageBox*>(widget);
            if (dialog && dialog->isVisible())
                dialogs.append(dialog);
        }
        return dialogs;
    }

    static void click(const QString& title)
    {
        for (QAbstractButton* const button : open().constFirst()->buttons()) {
            if (button->text() == title) {
                button->click();
                Testing::drainEvents();
                return;
            }
        }
        FAIL() << "there is no button " << qPrintable(title);
    }

    void offer()
    {
        dialogs.showUpdate({ u"58"_s, u"2.1"_s }, [this](UpdateChoice made) { choice = made; });
        ASSERT_EQ(open().size(), 1);
    }

    UpdateDialogs dialogs { u"2.0"_s };
    std::optional<UpdateChoice> choice;
    std::optional<bool> isAllowed;
};

TEST_F(UpdateDialogsTest, offersThreeAnswers)
{
    for (const auto& [title, expected] : { std::pair(u"Install…"_s, UpdateChoice::Install),
             std::pair(u"Skip This Version"_s, UpdateChoice::Skip),
             std::pair(u"Later"_s, UpdateChoice::Later) }) {
        offer();
        EXPECT_EQ(open().constFirst()->text(), u"Orvello 2.1 is available.");

        click(title);

        EXPECT_EQ(choice, expected) << qPrintable(title);
        EXPECT_TRUE(open().isEmpty());
    }
}

TEST_F(UpdateDialogsTest, takesClosingForLater)
{
    offer();

    open().constFirst()->close();

    EXPECT_EQ(choice, UpdateChoice::Later);
}

TEST_F(UpdateDialogsTest, showsWhatTheFeedSaysAsItIs)
{
    dialogs.showUpdate({ u"58"_s, u"<b>2</b>"_s }, [](UpdateChoice) {});

    EXPECT_EQ(open().constFirst()->textFormat(), Qt::PlainText);
}

TEST_F(UpdateDialogsTest, asksForPermission)
{
    for (const auto& [title, expected] :
        { std::pair(u"Check Automatically"_s, true), std::pair(u"Don’t Check"_s, false) }) {
        dialogs.askPermission([this](bool allowed) { isAllowed = allowed; });

        click(title);

        EXPECT_EQ(isAllowed, expected);
    }
}

TEST_F(UpdateDialogsTest, takesClosingForNoPermission)
{
    dialogs.askPermission([this](bool allowed) { isAllowed = allowed; });

    open().constFirst()->close();

    EXPECT_EQ(isAllowed, false);
}

TEST_F(UpdateDialogsTest, leavesTheKeyboardWhereItIs)
{
    offer();

    EXPECT_TRUE(open().constFirst()->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_FALSE(open().constFirst()->isModal());
}

TEST_F(UpdateDialogsTest, tellsTheOutcomeInPlaceOfAnOlderOne)
{
    dialogs.showOutcome(u"Orvello is up to date."_s);
    dialogs.showOutcome(u"The update feed cannot be read: gone"_s);

    ASSERT_EQ(open().size(), 1);
    EXPECT_EQ(open().constFirst()->text(), u"The update feed cannot be read: gone");
}

TEST_F(UpdateDialogsTest, goesWithoutAnAnswerWhenTheProgramEnds)
{
    {
        UpdateDialogs ending(u"2.0"_s);
        ending.showUpdate({ u"58"_s, u"2.1"_s }, [this](UpdateChoice made) { choice = made; });
        ending.askPermission([this](bool allowed) { isAllowed = allowed; });
    }

    EXPECT_TRUE(open().isEmpty());
    EXPECT_EQ(choice, std::nullopt);
    EXPECT_EQ(isAllowed, std::nullopt);
}

TEST_F(UpdateDialogsTest, translatesEveryText)
{
    Marks marks;
    QCoreApplication::installTranslator(&marks);
    const auto expectMarked = [](const QMessageBox& box) {
        QStringList texts { box.text(), box.informativeText() };
        for (const QAbstractButton* const button : box.buttons())
            texts.append(button->text());
        for (const QString& text : texts)
            EXPECT_TRUE(text.startsWith(u'«') && text.endsWith(u'»')) << text.toStdString();
    };

    dialogs.askPermission([](bool) {});
    expectMarked(*open().constFirst());
    open().constFirst()->close();
    Testing::drainEvents();
    offer();
    expectMarked(*open().constFirst());

    QCoreApplication::removeTranslator(&marks);
}

} // namespace
} // namespace Orvello
