#include "Orvello/Shell/Windows/ImpressAdviceDialog.h"

#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeHelperProcess.h"
#include "Tests/Support/SlideshowStage.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <gtest/gtest.h>

#include <memory>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class ImpressAdviceDialogTest : public ::testing::Test {
protected:
    ~ImpressAdviceDialogTest() override
    {
        dialog.reset();
        Testing::drainEvents();
    }

    void refuseImport()
    {
        impress.row().askOpenDeck([](const ScriptResult&) {});
        answer({ 1, {}, u"-1743"_s });
    }

    void answer(const ScriptResult& result)
    {
        helper.questions.last().completion(result);
        Testing::drainEvents();
    }

    static QList<QMessageBox*> boxes()
    {
        QList<QMessageBox*> shown;
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            if (auto* box = qobject_cast<QMessageBox*>(window); box && box->isVisible())
                shown.append(box);
        }
        return shown;
    }

    /// The one box that is shown.
    static QMessageBox& box()
    {
        EXPECT_EQ(boxes().size(), 1);
        return *boxes().at(0);
    }

    static QStringList buttons()
    {
        QStringList texts;
        const auto shown = box().buttons();
        for (const QAbstractButton* button : shown)
            texts.append(button->text().remove(u'&'));
        texts.sort();
        return texts;
    }

    static void press(const QString& text)
    {
        const auto shown = box().buttons();
        for (QAbstractButton* button : shown) {
            if (button->text().remove(u'&') == text) {
                button->click();
                Testing::drainEvents();
                return;
            }
        }
        FAIL() << "no button " << text.toStdString();
    }

    Testing::FakeHelperProcess helper;
    Testing::SlideshowStage stage;
    ImpressPresenter impress { helper, stage.monitor };
    std::unique_ptr<ImpressAdviceDialog> dialog = std::make_unique<ImpressAdviceDialog>(impress);
};

TEST_F(ImpressAdviceDialogTest, showsNothingUninvited) { EXPECT_TRUE(boxes().isEmpty()); }

TEST_F(ImpressAdviceDialogTest, offersToSetLibreOfficeUp)
{
    refuseImport();

    EXPECT_EQ(box().text(), u"Let Orvello follow your Impress presentations?"_s);
    EXPECT_FALSE(box().informativeText().isEmpty());
    EXPECT_FALSE(box().isModal());
    EXPECT_EQ(buttons(), QStringList({ u"Allow"_s, u"Not Now"_s }));
}

TEST_F(ImpressAdviceDialogTest, doesNothingWhenTheUserDoesNotWantIt)
{
    refuseImport();
    press(u"Not Now"_s);

    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(helper.questions.size(), 1);
}

TEST_F(ImpressAdviceDialogTest, allowsAndTakesBack)
{
    refuseImport();
    press(u"Allow"_s);
    EXPECT_EQ(helper.questions.last().text, u"allow"_s);
    EXPECT_EQ(box().text(), u"Orvello is talking to LibreOffice…"_s);

    answer({ 0, u"Orvello may now follow Impress.\n\nTo take this back later: helper\n"_s, {} });
    EXPECT_EQ(box().text(), u"Orvello may now follow Impress."_s);
    EXPECT_EQ(box().informativeText(), u"To take this back later: helper"_s);
    EXPECT_EQ(buttons(), QStringList({ u"OK"_s, u"Undo"_s }));

    press(u"Undo"_s);
    EXPECT_EQ(helper.questions.last().text, u"disallow"_s);
    answer({ 0, u"Orvello may no longer follow Impress.\n"_s, {} });
    EXPECT_EQ(box().text(), u"Orvello may no longer follow Impress."_s);
    EXPECT_EQ(buttons(), QStringList({ u"OK"_s }));

    press(u"OK"_s);
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(helper.questions.size(), 3);
}

TEST_F(ImpressAdviceDialogTest, letsEveryBoxBeClosed)
{
    refuseImport();
    EXPECT_TRUE(box().close());

    refuseImport();
    press(u"Allow"_s);
    EXPECT_TRUE(box().close());

    answer({ 0, u"Orvello may now follow Impress."_s, {} });
    EXPECT_EQ(box().defaultButton()->text(), u"OK"_s);
    EXPECT_TRUE(box().close());
    Testing::drainEvents();
    EXPECT_EQ(helper.questions.last().text, u"allow"_s);
}

TEST_F(ImpressAdviceDialogTest, saysWhyLibreOfficeCouldNotBeSetUp)
{
    refuseImport();
    press(u"Allow"_s);
    answer({ 1, {}, u"LibreOffice isn't installed.\n"_s });

    EXPECT_EQ(box().text(), u"LibreOffice isn't installed."_s);
    EXPECT_EQ(buttons(), QStringList({ u"OK"_s }));
}

TEST_F(ImpressAdviceDialogTest, showsOneBoxAtATime)
{
    refuseImport();
    refuseImport();
    EXPECT_EQ(boxes().size(), 1);

    press(u"Allow"_s);
    refuseImport();
    EXPECT_EQ(box().text(), u"Orvello is talking to LibreOffice…"_s);
}

TEST_F(ImpressAdviceDialogTest, takesItsBoxAlong)
{
    refuseImport();
    dialog.reset();

    EXPECT_TRUE(boxes().isEmpty());
}

} // namespace
} // namespace Orvello
