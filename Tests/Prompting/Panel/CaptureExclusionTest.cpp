#include "Orvello/Prompting/Panel/CaptureExclusion.h"

#include "Tests/Support/WindowServerStandIn.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Testing::WindowServerStandIn;
using ::testing::IsEmpty;

/// A list of the one value, or an empty list.
template <typename Value>
std::vector<Value> only(const Value& value, bool isThere)
{
    return isThere ? std::vector { value } : std::vector<Value> {};
}

/// Runs with every combination of calls present and missing.
class CaptureExclusionTest : public ::testing::TestWithParam<Calls> {
protected:
    void SetUp() override { state() = {}; }
    void TearDown() override { EXPECT_EQ(state().regionsReleased, state().regionsMade); }

    const bool hasRegionCreate = GetParam().regionCreate;
    const bool hasRegionNew = GetParam().regionNew;
    const bool canClear = GetParam().connection && GetParam().shape;
    const bool canExclude = canClear && (hasRegionCreate || hasRegionNew);
    const CaptureExclusion exclusion { lookUp(GetParam()) };
};

std::vector<Calls> everyCombination()
{
    std::vector<Calls> all;
    for (const bool hasConnection : { false, true })
        for (const bool hasShape : { false, true })
            for (const bool hasCreate : { false, true })
                for (const bool hasNew : { false, true })
                    all.push_back({ hasConnection, hasShape, hasCreate, hasNew });
    return all;
}

INSTANTIATE_TEST_SUITE_P(Calls, CaptureExclusionTest, ::testing::ValuesIn(everyCombination()),
    ::testing::PrintToStringParamName());

TEST_P(CaptureExclusionTest, isUsableExactlyWithConnectionShapeAndARegionMaker)
{
    EXPECT_EQ(exclusion.isUsable(), canExclude);
    EXPECT_EQ(exclusion.canSetShape(), canClear);
}

TEST_P(CaptureExclusionTest, excludesARectangleLargerThanTheWindow)
{
    EXPECT_EQ(exclusion.setExcluded(true, 42, { 720, 200 }), canExclude);

    const ShapeCall covering { connection, 42, true, { 0, 0, 920, 400 } };
    EXPECT_EQ(state().shapeCalls, only(covering, canExclude));
}

TEST_P(CaptureExclusionTest, clearsTheShapeWithANullRegion)
{
    EXPECT_EQ(exclusion.setExcluded(false, 42, { 720, 200 }), canClear);

    const ShapeCall clearing { connection, 42, false, {} };
    EXPECT_EQ(state().shapeCalls, only(clearing, canClear));
    EXPECT_EQ(state().regionsMade, 0);
}

TEST_P(CaptureExclusionTest, prefersTheFirstRegionMaker)
{
    const CaptureExclusion::Region region = exclusion.makeRegion({ 1, 2, 3, 4 });

    const std::string preferred = hasRegionCreate ? "create" : "new";
    EXPECT_EQ(region != nullptr, hasRegionCreate || hasRegionNew);
    EXPECT_EQ(state().regionMakersUsed, only(preferred, hasRegionCreate || hasRegionNew));
}

TEST_P(CaptureExclusionTest, doesNotFallBackWhenThePreferredMakerRefuses)
{
    state().refusesRegions = true;

    const bool isMade = exclusion.makeRegion({ 0, 0, 1, 1 }) != nullptr;

    EXPECT_EQ(isMade, !hasRegionCreate && hasRegionNew);
}

TEST_P(CaptureExclusionTest, failsWithoutARegion)
{
    state().refusesRegions = true;
    state().regionError = 1000;

    EXPECT_FALSE(exclusion.setExcluded(true, 42, { 720, 200 }));
    EXPECT_THAT(state().shapeCalls, IsEmpty());
}

TEST_P(CaptureExclusionTest, reportsAnErrorOfTheWindowServer)
{
    state().shapeError = 1001;

    EXPECT_FALSE(exclusion.setExcluded(true, 42, { 720, 200 }));
    EXPECT_FALSE(exclusion.setExcluded(false, 42, { 720, 200 }));
}

TEST_P(CaptureExclusionTest, refusesWindowsWithoutANumber)
{
    for (const qint64 number : { 0LL, -1LL, -5'000'000'000LL }) {
        EXPECT_FALSE(exclusion.setExcluded(true, number, { 720, 200 }));
        EXPECT_FALSE(exclusion.setExcluded(false, number, { 720, 200 }));
    }
    EXPECT_THAT(state().shapeCalls, IsEmpty());
}

using CaptureExclusionDeathTest = CaptureExclusionTest;

INSTANTIATE_TEST_SUITE_P(Calls, CaptureExclusionDeathTest, ::testing::ValuesIn(everyCombination()),
    ::testing::PrintToStringParamName());

TEST_P(CaptureExclusionDeathTest, endsTheProcessForANumberBeyond32Bits)
{
    const auto exclude = [this] { return exclusion.setExcluded(true, 5'000'000'000, { 1, 1 }); };
    if (!canClear) {
        EXPECT_FALSE(exclude());
        return;
    }
    EXPECT_DEATH(exclude(), "does not fit");
}

TEST(CaptureExclusionInThisProcessTest, findsWhatIsLoadedAndNothingElse)
{
    EXPECT_NE(CaptureExclusion::lookUpInProcess("malloc"), nullptr);
    EXPECT_EQ(CaptureExclusion::lookUpInProcess("noFunctionHasThisName"), nullptr);
}

} // namespace
} // namespace Orvello
