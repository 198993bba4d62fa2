#include "Orvello/Foundation/Observe.h"

#include "Tests/Support/EventLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace Orvello {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Lamp final : public QObject {
    Q_OBJECT

public:
    int brightness() const { return m_brightness; }
    void setBrightness(int brightness)
    {
        m_brightness = brightness;
        Q_EMIT brightnessChanged();
    }

Q_SIGNALS:
    void brightnessChanged();

private:
    int m_brightness = 3;
};

class ObserveTest : public ::testing::Test {
protected:
    void subscribe()
    {
        observe(lamp, &Lamp::brightness, &Lamp::brightnessChanged, *context,
            [this](int brightness) { seen.push_back(brightness); });
    }

    Lamp lamp;
    std::unique_ptr<QObject> context = std::make_unique<QObject>();
    std::vector<int> seen;
};

TEST_F(ObserveTest, deliversTheCurrentValueOnceThroughTheMainLoop)
{
    subscribe();
    EXPECT_THAT(seen, IsEmpty());

    Testing::drainEvents();

    EXPECT_THAT(seen, ElementsAre(3));
}

TEST_F(ObserveTest, deliversEveryChangeInOrderWithTheValueThatItHadThen)
{
    subscribe();
    lamp.setBrightness(4);
    lamp.setBrightness(5);

    Testing::drainEvents();

    EXPECT_THAT(seen, ElementsAre(3, 4, 5));
}

TEST_F(ObserveTest, endsWithItsContextEvenForDeliveriesUnderWay)
{
    subscribe();
    lamp.setBrightness(4);

    context.reset();
    lamp.setBrightness(5);
    Testing::drainEvents();

    EXPECT_THAT(seen, IsEmpty());
}

} // namespace
} // namespace Orvello

#include "ObserveTest.moc"
