#include "Tests/Support/PrompterServices.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickView>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::Not;

/// What the view tells a screen reader, in a window that is never drawn.
class PrompterAccessibilityTest : public ::testing::Test {
protected:
    PrompterAccessibilityTest()
    {
        services.prompt(u"Good morning."_s);
        auto& view = static_cast<QQuickView&>(window.window());
        view.resize(720, 200);
        view.rootObject()->setSize({ 720, 200 });
    }

    /// The objects that are not hidden, in the order in which they are read.
    std::vector<QAccessibleInterface*> objects()
    {
        std::vector<QAccessibleInterface*> found;
        collect(QAccessible::queryAccessibleInterface(&window.window()), found);
        return found;
    }

    static void collect(QAccessibleInterface* object, std::vector<QAccessibleInterface*>& found)
    {
        for (int i = 0; i < object->childCount(); ++i) {
            QAccessibleInterface* const child = object->child(i);
            // The object's own state says that nothing is visible in a window that is not.
            const auto* const item = qobject_cast<const QQuickItem*>(child->object());
            if (item && !item->isVisible())
                continue;
            found.push_back(child);
            collect(child, found);
        }
    }

    QAccessibleInterface* object(const QString& name)
    {
        for (QAccessibleInterface* const candidate : objects()) {
            if (candidate->text(QAccessible::Name) == name)
                return candidate;
        }
        return nullptr;
    }

    /// "name (description)" of every object of a role.
    std::vector<std::string> named(QAccessible::Role role)
    {
        std::vector<std::string> names;
        for (const QAccessibleInterface* const candidate : objects()) {
            if (candidate->role() == role)
                names.push_back(u"%1 (%2)"_s
                                    .arg(candidate->text(QAccessible::Name),
                                        candidate->text(QAccessible::Description))
                                    .toStdString());
        }
        return names;
    }

    bool canBePressed(const QString& name)
    {
        QAccessibleInterface* const button = object(name);
        EXPECT_TRUE(button) << name.toStdString();
        return button && !button->state().disabled;
    }

    void press(const QString& name)
    {
        QAccessibleInterface* const button = object(name);
        ASSERT_TRUE(button) << name.toStdString();
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        Testing::drainEvents();
    }

    Testing::PrompterServices services;
    PrompterWindow window { services.ofWindow() };
};

TEST_F(PrompterAccessibilityTest, tellsWhichOfTheChipsButtonsAreInert)
{
    services.openDeck({ { 1, u"Intro"_s, u"First notes"_s }, { 2, u"End"_s, u"Last notes"_s } });
    EXPECT_FALSE(canBePressed(u"Previous slide"_s));
    EXPECT_TRUE(canBePressed(u"Next slide"_s));

    press(u"Previous slide"_s);
    EXPECT_EQ(services.deck.displayIndex(), 0);
    press(u"Next slide"_s);
    EXPECT_EQ(services.deck.displayIndex(), 1);

    EXPECT_TRUE(canBePressed(u"Previous slide"_s));
    EXPECT_FALSE(canBePressed(u"Next slide"_s));
}

TEST_F(PrompterAccessibilityTest, offersTheNotesOfTheDeckThatIsOnScreen)
{
    services.openDeck({ { 1, u"Intro"_s, u"First notes"_s }, { 2, u"End"_s, u"Last notes"_s } });
    services.presentOtherDeck(u"Budget\x1e"
                              "Costs\x1f\x1eIncome\x1f"_s);

    const QString notice = u"“Budget” is on screen. These notes are from another presentation."_s;
    ASSERT_TRUE(object(notice));
    EXPECT_EQ(object(notice)->role(), QAccessible::AlertMessage);
    EXPECT_TRUE(canBePressed(u"Import its notes"_s));
    EXPECT_FALSE(object(u"Next slide"_s));

    press(u"Keep these notes"_s);
    EXPECT_FALSE(object(notice));
    EXPECT_TRUE(canBePressed(u"Next slide"_s));
}

TEST_F(PrompterAccessibilityTest, readsTheCountdownWhileItCounts)
{
    services.settings.setCountdownSeconds(2);
    const auto countdown = [this] { return named(QAccessible::StaticText); };
    EXPECT_THAT(countdown(), Contains("paused (Status)"));

    services.engine.start();
    EXPECT_THAT(countdown(), Contains("2 (Countdown)"));
    EXPECT_THAT(countdown(), Contains("get ready (Status)"));

    services.stage.time.advance(1.0);
    EXPECT_THAT(countdown(), Contains("1 (Countdown)"));

    services.stage.time.advance(1.0);
    EXPECT_THAT(countdown(), Not(Contains(::testing::HasSubstr("(Countdown)"))));
}

TEST_F(PrompterAccessibilityTest, readsWhatTheMicrophoneHearsWithTheStatus)
{
    services.microphones.become({ .heard = u"Headset"_s });
    services.settings.setVoiceFollow(true);
    services.hear(0);
    EXPECT_THAT(named(QAccessible::StaticText),
        Contains("paused (Status\nListening to “Headset”.\nEcho cancellation is on.)"));

    services.microphones.become({ .trouble = Microphones::Trouble::NoAnswer });
    EXPECT_THAT(named(QAccessible::StaticText),
        Contains("paused (Status\nThe sound system does not answer.)"));
}

TEST_F(PrompterAccessibilityTest, readsTheShareNoticeUntilItIsDismissed)
{
    const QString notice = u"Toggling Stealth Mode during a screen share can gray out this "
                           "prompter — close and open Orvello again to clear it."_s;
    EXPECT_FALSE(object(notice));
    EXPECT_FALSE(object(u"Dismiss"_s));

    services.setInCall(true);
    ASSERT_TRUE(object(notice));
    EXPECT_EQ(object(notice)->role(), QAccessible::AlertMessage);
    EXPECT_TRUE(canBePressed(u"Dismiss"_s));

    press(u"Dismiss"_s);
    EXPECT_FALSE(object(notice));
    EXPECT_FALSE(object(u"Dismiss"_s));
}

TEST_F(PrompterAccessibilityTest, saysThatStealthModeHidesNothingWhereRecordingsShowTheCard)
{
    const QString notice = u"Stealth Mode has no effect on this desktop — whoever sees your screen "
                           "sees this prompter, too."_s;
    window.setVisibleInRecordings(true);
    EXPECT_FALSE(object(notice));

    services.setInCall(true);
    EXPECT_TRUE(object(notice));

    press(u"Dismiss"_s);
    EXPECT_FALSE(object(notice));
}

TEST_F(PrompterAccessibilityTest, foldsTheBadgeAndStillReadsIt)
{
    const QString badge = u"VISIBLE IN RECORDINGS"_s;
    window.setVisibleInRecordings(true);
    ASSERT_TRUE(object(badge));
    EXPECT_EQ(object(badge)->role(), QAccessible::AlertMessage);

    press(u"Fold the badge to an eye"_s);
    EXPECT_TRUE(services.settings.recordingBadgeFolded());
    EXPECT_TRUE(object(badge));

    press(u"Show the badge in full"_s);
    EXPECT_FALSE(services.settings.recordingBadgeFolded());
}

} // namespace
} // namespace Orvello
