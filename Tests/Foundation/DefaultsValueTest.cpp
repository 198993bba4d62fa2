#include "Orvello/Foundation/DefaultsValue.h"

#include <gtest/gtest.h>

#include <limits>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using namespace DefaultsValue;

constexpr qint64 greatest = std::numeric_limits<qint64>::max();
constexpr qint64 least = std::numeric_limits<qint64>::min();

TEST(DefaultsValueTest, takesNumbersAndBooleansForNumbers)
{
    EXPECT_EQ(asNumber(25.5), 25.5);
    EXPECT_EQ(asNumber(25.5f), 25.5);
    EXPECT_EQ(asNumber(25), 25.0);
    EXPECT_EQ(asNumber(25u), 25.0);
    EXPECT_EQ(asNumber(Q_INT64_C(-25)), -25.0);
    EXPECT_EQ(asNumber(true), 1.0);
    EXPECT_EQ(asNumber(false), 0.0);
}

TEST(DefaultsValueTest, takesNothingElseForANumber)
{
    EXPECT_EQ(asNumber(QVariant()), std::nullopt);
    EXPECT_EQ(asNumber(u"fast"_s), std::nullopt);
    EXPECT_EQ(asNumber(u"25"_s), std::nullopt);
    EXPECT_EQ(asNumber(QByteArray("25")), std::nullopt);
    EXPECT_EQ(asNumber(QVariantList { 25 }), std::nullopt);
    EXPECT_EQ(asNumber(QVariantMap {}), std::nullopt);
    EXPECT_EQ(asNumber(QVariant::fromValue(nullptr)), std::nullopt);
}

TEST(DefaultsValueTest, takesBooleansAndTheNumbersZeroAndOneForBooleans)
{
    EXPECT_EQ(asBoolean(true), true);
    EXPECT_EQ(asBoolean(false), false);
    EXPECT_EQ(asBoolean(1), true);
    EXPECT_EQ(asBoolean(0), false);
    EXPECT_EQ(asBoolean(1.0), true);
    EXPECT_EQ(asBoolean(0.0), false);
}

TEST(DefaultsValueTest, takesNothingElseForABoolean)
{
    EXPECT_EQ(asBoolean(QVariant()), std::nullopt);
    EXPECT_EQ(asBoolean(2), std::nullopt);
    EXPECT_EQ(asBoolean(0.5), std::nullopt);
    EXPECT_EQ(asBoolean(u"true"_s), std::nullopt);
    EXPECT_EQ(asBoolean(u"1"_s), std::nullopt);
    EXPECT_EQ(asBoolean(QVariantList { true }), std::nullopt);
}

TEST(DefaultsValueTest, takesOnlyStringsForStrings)
{
    EXPECT_EQ(asString(u"White"_s), u"White"_s);
    EXPECT_EQ(asString(u""_s), u""_s);
    EXPECT_EQ(asString(QVariant()), std::nullopt);
    EXPECT_EQ(asString(5), std::nullopt);
    EXPECT_EQ(asString(true), std::nullopt);
    EXPECT_EQ(asString(QByteArray("White")), std::nullopt);
}

TEST(DefaultsValueTest, readsIntegersFromAnythingNumeric)
{
    EXPECT_EQ(asInteger(3), 3);
    EXPECT_EQ(asInteger(greatest), greatest);
    EXPECT_EQ(asInteger(3.9), 3);
    EXPECT_EQ(asInteger(-3.9), -3);
    EXPECT_EQ(asInteger(true), 1);
    EXPECT_EQ(asInteger(u"3"_s), 3);
    EXPECT_EQ(asInteger(u"  -12 slides"_s), -12);
    EXPECT_EQ(asInteger(u"+7"_s), 7);
}

TEST(DefaultsValueTest, readsZeroFromAnythingElse)
{
    EXPECT_EQ(asInteger(QVariant()), 0);
    EXPECT_EQ(asInteger(u"three"_s), 0);
    EXPECT_EQ(asInteger(u""_s), 0);
    EXPECT_EQ(asInteger(u"-"_s), 0);
    EXPECT_EQ(asInteger(QVariantList { 3 }), 0);
    EXPECT_EQ(asInteger(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(DefaultsValueTest, holdsIntegersInsideTheirRange)
{
    EXPECT_EQ(asInteger(1e300), greatest);
    EXPECT_EQ(asInteger(-1e300), least);
    EXPECT_EQ(asInteger(std::numeric_limits<double>::infinity()), greatest);
    EXPECT_EQ(asInteger(std::numeric_limits<quint64>::max()), greatest);
    EXPECT_EQ(asInteger(u"99999999999999999999"_s), greatest);
    EXPECT_EQ(asInteger(u"-99999999999999999999"_s), least);
}

} // namespace
} // namespace Orvello
