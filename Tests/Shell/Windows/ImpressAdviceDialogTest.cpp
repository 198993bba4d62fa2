#include "Orvello/Shell/Windows/ImpressAdviceDialog.h"

#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeHelperProcess.h"
#include "Tests/Support/FakeUserDefaults.h"
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

    void import()
    {
        impress.row().askOpenDeck([](const ScriptResult&) {});
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
    Testing::FakeUserDefaults defaults;
    Testing::SlideshowStage stage;
    ImpressPresenter impress { helper, stage.monitor, defaults };
    std::unique_ptr<ImpressAdviceDialog> dialog = std::make_unique<ImpressAdviceDialog>(impress);
};

TEST_F(ImpressAdviceDialogTest, showsNothingUninvited) { EXPECT_TRUE(boxes().isEmpty()); }

TEST_F(ImpressAdviceDialogTest, asksForConsentInTwoSentences)
{
    import();

    EXPECT_EQ(box().text(), u"Let Orvello follow your Impress presentations?"_s);
    EXPECT_EQ(box().informativeText(), ImpressAdviceDialog::consentText());
    EXPECT_EQ(box().informativeText().count(u'.'), 2);
    EXPECT_FALSE(box().isModal());
    EXPECT_EQ(buttons(), QStringList({ u"Allow"_s, u"Not Now"_s }));
}

TEST_F(ImpressAdviceDialogTest, doesNothingWhenTheUserDoesNotWantIt)
{
    import();
    press(u"Not Now"_s);

    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_FALSE(impress.isAllowed());
}

TEST_F(ImpressAdviceDialogTest, takesTheConsentAndStartsNothing)
{
    import();
    press(u"Allow"_s);

    EXPECT_TRUE(impress.isAllowed());
    EXPECT_TRUE(helper.questions.isEmpty());
    EXPECT_EQ(box().text(),
        u"Orvello may now follow Impress. Start the slideshow or the import again."_s);
    EXPECT_EQ(buttons(), QStringList { u"OK"_s });
    press(u"OK"_s);
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(ImpressAdviceDialogTest, saysWhatIsInTheWay)
{
    impress.setAllowed(true);
    import();
    helper.questions.last().completion({ 1, {}, u"It is closed. (-1743)"_s });
    Testing::drainEvents();

    EXPECT_EQ(box().text(), u"It is closed."_s);
    EXPECT_EQ(buttons(), QStringList { u"OK"_s });
    EXPECT_EQ(box().defaultButton()->text(), u"OK"_s);
    EXPECT_TRUE(box().close());
}

TEST_F(ImpressAdviceDialogTest, showsOneBoxAtATime)
{
    import();
    import();

    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(ImpressAdviceDialogTest, leavesNoBoxBeforeTheAudience)
{
    stage.monitor.start();
    import();
    EXPECT_EQ(boxes().size(), 1);

    stage.presentKeynote();
    stage.time.advance(1.0);
    EXPECT_TRUE(boxes().isEmpty());
    import();
    EXPECT_TRUE(boxes().isEmpty());

    stage.endSlideshow();
    stage.time.advance(1.0);
    EXPECT_EQ(buttons(), QStringList({ u"Allow"_s, u"Not Now"_s }));
}

TEST_F(ImpressAdviceDialogTest, takesItsBoxAlong)
{
    import();
    dialog.reset();

    EXPECT_TRUE(boxes().isEmpty());
}

} // namespace
} // namespace Orvello
