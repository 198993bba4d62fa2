#include "Orvello/Prompting/Panel/CaptureExclusion.h"

#include "Tests/Support/WindowServerStandIn.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// These tests are linked into several programs, each of which has another subset of the window
// server's calls. A call that a program lacks is a weak symbol without an address.
extern "C" {
__attribute__((weak)) std::uint32_t CGSMainConnectionID();
__attribute__((weak)) std::int32_t CGSSetWindowCaptureExcludeShape(
    std::uint32_t, std::uint32_t, const void*);
__attribute__((weak))
const void* CGRegionCreateWithRect(Orvello::Testing::WindowServerStandIn::Rect);
__attribute__((weak)) std::int32_t CGSNewRegionWithRect(
    const Orvello::Testing::WindowServerStandIn::Rect*, const void**);
}

namespace Orvello {
namespace {

using namespace Testing::WindowServerStandIn;
using ::testing::IsEmpty;

const bool hasRegionCreate = CGRegionCreateWithRect != nullptr;
const bool hasRegionNew = CGSNewRegionWithRect != nullptr;
const bool canClear = CGSMainConnectionID && CGSSetWindowCaptureExcludeShape;
const bool canExclude = canClear && (hasRegionCreate || hasRegionNew);

/// A list of the one value, or an empty list.
template <typename Value>
std::vector<Value> only(const Value& value, bool isThere)
{
    return isThere ? std::vector { value } : std::vector<Value> {};
}

class CaptureExclusionTest : public ::testing::Test {
protected:
    void SetUp() override { state() = {}; }
    void TearDown() override { EXPECT_EQ(state().regionsReleased, state().regionsMade); }
};

TEST_F(CaptureExclusionTest, isUsableExactlyWithConnectionShapeAndARegionMaker)
{
    EXPECT_EQ(CaptureExclusion::isUsable(), canExclude);
    EXPECT_EQ(CaptureExclusion::canSetShape(), canClear);
}

TEST_F(CaptureExclusionTest, excludesARectangleLargerThanTheWindow)
{
    EXPECT_EQ(CaptureExclusion::setExcluded(true, 42, { 720, 200 }), canExclude);

    const ShapeCall covering { connection, 42, true, { 0, 0, 920, 400 } };
    EXPECT_EQ(state().shapeCalls, only(covering, canExclude));
}

TEST_F(CaptureExclusionTest, clearsTheShapeWithANullRegion)
{
    EXPECT_EQ(CaptureExclusion::setExcluded(false, 42, { 720, 200 }), canClear);

    const ShapeCall clearing { connection, 42, false, {} };
    EXPECT_EQ(state().shapeCalls, only(clearing, canClear));
    EXPECT_EQ(state().regionsMade, 0);
}

TEST_F(CaptureExclusionTest, prefersTheFirstRegionMaker)
{
    const CaptureExclusion::Region region = CaptureExclusion::makeRegion({ 1, 2, 3, 4 });

    const std::string preferred = hasRegionCreate ? "create" : "new";
    EXPECT_EQ(region != nullptr, hasRegionCreate || hasRegionNew);
    EXPECT_EQ(state().regionMakersUsed, only(preferred, hasRegionCreate || hasRegionNew));
}

TEST_F(CaptureExclusionTest, doesNotFallBackWhenThePreferredMakerRefuses)
{
    state().refusesRegions = true;

    const bool isMade = CaptureExclusion::makeRegion({ 0, 0, 1, 1 }) != nullptr;

    EXPECT_EQ(isMade, !hasRegionCreate && hasRegionNew);
}

TEST_F(CaptureExclusionTest, failsWithoutARegion)
{
    state().refusesRegions = true;
    state().regionError = 1000;

    EXPECT_FALSE(CaptureExclusion::setExcluded(true, 42, { 720, 200 }));
    EXPECT_THAT(state().shapeCalls, IsEmpty());
}

TEST_F(CaptureExclusionTest, reportsAnErrorOfTheWindowServer)
{
    state().shapeError = 1001;

    EXPECT_FALSE(CaptureExclusion::setExcluded(true, 42, { 720, 200 }));
    EXPECT_FALSE(CaptureExclusion::setExcluded(false, 42, { 720, 200 }));
}

TEST_F(CaptureExclusionTest, refusesWindowsWithoutANumber)
{
    for (const qint64 number : { 0LL, -1LL, -5'000'000'000LL }) {
        EXPECT_FALSE(CaptureExclusion::setExcluded(true, number, { 720, 200 }));
        EXPECT_FALSE(CaptureExclusion::setExcluded(false, number, { 720, 200 }));
    }
    EXPECT_THAT(state().shapeCalls, IsEmpty());
}

TEST(CaptureExclusionDeathTest, endsTheProcessForANumberBeyond32Bits)
{
    const auto exclude = [] {
        return CaptureExclusion::setExcluded(true, 5'000'000'000, { 1, 1 });
    };
    if (!canClear) {
        EXPECT_FALSE(exclude());
        return;
    }
    EXPECT_DEATH(exclude(), "does not fit");
}

} // namespace
} // namespace Orvello
