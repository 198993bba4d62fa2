#include "Orvello/Adapters/Linux/Sound/FarEndPlaces.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

class FarEndPlacesTest : public ::testing::Test {
protected:
    QList<QByteArray> held() const
    {
        QList<QByteArray> result;
        for (std::size_t place = 0; place < FarEndPlaces::count; ++place)
            result.append(places.at(place).value_or("-"));
        return result;
    }

    FarEndPlaces places;
};

TEST_F(FarEndPlacesTest, areTakenInOrder)
{
    EXPECT_EQ(held(), QList<QByteArray>({ "-", "-", "-" }));
    places.assign({ "speakers", "headset" });
    EXPECT_EQ(held(), QList<QByteArray>({ "speakers", "headset", "-" }));
}

TEST_F(FarEndPlacesTest, areKeptWhenAnotherFarEndGoes)
{
    places.assign({ "speakers", "television", "headset" });

    places.assign({ "speakers", "headset" });
    EXPECT_EQ(held(), QList<QByteArray>({ "speakers", "-", "headset" }));

    places.assign({ "speakers", "beamer", "headset" });
    EXPECT_EQ(held(), QList<QByteArray>({ "speakers", "beamer", "headset" }));
}

TEST_F(FarEndPlacesTest, areKeptWhenAnotherBecomesTheMostImportant)
{
    places.assign({ "speakers", "headset" });

    places.assign({ "headset", "speakers" });

    EXPECT_EQ(held(), QList<QByteArray>({ "speakers", "headset", "-" }));
}

TEST_F(FarEndPlacesTest, alwaysHoldTheMostImportant)
{
    places.assign({ "one", "two", "three", "four" });
    EXPECT_EQ(held(), QList<QByteArray>({ "one", "two", "three" }));

    places.assign({ "four", "one", "two", "three" });

    EXPECT_EQ(held(), QList<QByteArray>({ "one", "two", "four" }));
}

TEST_F(FarEndPlacesTest, areFreeOnceNothingPlays)
{
    places.assign({ "speakers" });

    places.assign({});

    EXPECT_EQ(held(), QList<QByteArray>({ "-", "-", "-" }));
}

} // namespace
} // namespace Orvello
