#include "Orvello/Prompting/View/PrompterStatus.h"

#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/ManualTimeSource.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

const QColor yellow(255, 214, 10);
const QColor orange(255, 159, 10);
const QColor green(48, 209, 88);

class PrompterStatusTest : public ::testing::Test {
protected:
    PrompterStatusTest() { settings.setCountdownSeconds(0); }

    Testing::FakeUserDefaults defaults;
    SettingsStore settings { defaults };
    Testing::ManualTimeSource time;
    ScrollEngine engine { settings, time };
    PrompterStatus status { engine };
};

TEST_F(PrompterStatusTest, isPausedAtFirst)
{
    EXPECT_EQ(status.label(), u"paused"_s);
    EXPECT_EQ(status.color(), orange);
}

TEST_F(PrompterStatusTest, saysGetReadyDuringTheCountdownWhateverElseHolds)
{
    settings.setCountdownSeconds(3);
    engine.setHoverPaused(true);
    engine.setVoiceFollowActive(true);

    engine.start();

    EXPECT_EQ(status.label(), u"get ready"_s);
    EXPECT_EQ(status.color(), yellow);
}

TEST_F(PrompterStatusTest, saysHoverPauseAlsoWhileNotRunning)
{
    engine.setHoverPaused(true);
    EXPECT_EQ(status.label(), u"hover pause"_s);
    EXPECT_EQ(status.color(), orange);

    engine.start();
    EXPECT_EQ(status.label(), u"hover pause"_s);
}

TEST_F(PrompterStatusTest, saysPausedBeforeListening)
{
    engine.setVoiceFollowActive(true);

    EXPECT_EQ(status.label(), u"paused"_s);
}

TEST_F(PrompterStatusTest, listensWhileTheVoiceGateIsClosed)
{
    engine.start();
    engine.setVoiceFollowActive(true);
    EXPECT_EQ(status.label(), u"listening…"_s);
    EXPECT_EQ(status.color(), yellow);

    engine.setVoiceGate(true);
    EXPECT_EQ(status.label(), u"scrolling"_s);
    EXPECT_EQ(status.color(), green);
}

TEST_F(PrompterStatusTest, ignoresTheVoiceGateWithoutVoiceFollow)
{
    engine.start();

    EXPECT_EQ(status.label(), u"scrolling"_s);
}

TEST_F(PrompterStatusTest, announcesTransitionsOnly)
{
    const QSignalSpy changed(&status, &PrompterStatus::changed);
    settings.setCountdownSeconds(2);

    engine.start();
    EXPECT_EQ(changed.count(), 1);

    time.advance(1);
    EXPECT_EQ(changed.count(), 1);

    time.advance(1);
    EXPECT_EQ(changed.count(), 2);
    EXPECT_EQ(status.label(), u"scrolling"_s);

    engine.setVoiceGate(true);
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(PrompterStatusTest, listsEveryLabel)
{
    EXPECT_EQ(PrompterStatus::labels(),
        QStringList(
            { u"get ready"_s, u"hover pause"_s, u"paused"_s, u"listening…"_s, u"scrolling"_s }));
}

} // namespace
} // namespace Orvello
