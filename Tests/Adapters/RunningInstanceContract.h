#pragma once

#include "Orvello/Platform/Early/RunningInstance.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace Orvello::Testing {

/// Starts of the program, of which the adapter `Instance` makes one. A later one runs on a thread
/// of its own, because it waits for the answer of the first. `Place` is what tells one user's
/// program from another's.
template <typename Instance, typename Place>
class InstanceFixture : public ::testing::Test {
protected:
    void SetUp() override { first = std::make_unique<Instance>(place()); }

    virtual Place place() const = 0;

    void listen()
    {
        first->listen({ {}, [this](const ProgramStart& start, const auto& answer) {
                           starts.append(start);
                           answer(refusals);
                       } });
    }

    /// What comes of a second start.
    static RunningInstance::Outcome startAgain(const Place& place, const ProgramStart& start = {})
    {
        std::optional<RunningInstance::Outcome> outcome;
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            Instance second(place);
            outcome = second.claim(start);
        }));
        thread->start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return thread->isFinished(); }, 60'000));
        return outcome.value();
    }

    /// What is left where the program keeps its files.
    QStringList files() const
    {
        return QDir(logs()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }
    QString logs() const { return folder.filePath(QStringLiteral("logs")); }

    QTemporaryDir folder;
    std::unique_ptr<Instance> first;
    QStringList refusals;
    QList<ProgramStart> starts;
};

} // namespace Orvello::Testing

namespace Orvello {

/// What every adapter keeps.
template <typename Fixture>
class RunningInstanceContract : public Fixture {
};
TYPED_TEST_SUITE_P(RunningInstanceContract);

TYPED_TEST_P(RunningInstanceContract, isTheOneWhenNobodyElseRuns)
{
    EXPECT_EQ(this->first->claim({}).claim, RunningInstance::Claim::Granted);
}

TYPED_TEST_P(RunningInstanceContract, handsEverythingToTheOneThatRuns)
{
    using namespace Qt::StringLiterals;
    ASSERT_EQ(this->first->claim({}).claim, RunningInstance::Claim::Granted);
    this->listen();
    const ProgramStart start { { u"--voice"_s, u"orvello://a"_s, u"-key"_s, u"Grün"_s, u""_s },
        u"/home/ada"_s, { { u"ORVELLO_IMPORT_PPTX"_s, u"talk.pptx"_s } } };

    EXPECT_EQ(this->startAgain(this->place(), start).claim, RunningInstance::Claim::HandedOver);
    EXPECT_EQ(this->startAgain(this->place()).claim, RunningInstance::Claim::HandedOver);

    EXPECT_THAT(this->starts, ::testing::ElementsAre(start, ProgramStart()));
}

TYPED_TEST_P(RunningInstanceContract, tellsTheSecondStartWhatCouldNotBeDone)
{
    ASSERT_EQ(this->first->claim({}).claim, RunningInstance::Claim::Granted);
    this->refusals = { QStringLiteral("--no-stealth comes too late") };
    this->listen();

    const RunningInstance::Outcome outcome = this->startAgain(this->place());

    EXPECT_EQ(outcome.claim, RunningInstance::Claim::HandedOver);
    EXPECT_EQ(outcome.messages, this->refusals);
}

TYPED_TEST_P(RunningInstanceContract, letsAStartWaitUntilSomebodyListens)
{
    ASSERT_EQ(this->first->claim({}).claim, RunningInstance::Claim::Granted);
    QTimer timer;
    timer.singleShot(300, &timer, [this] { this->listen(); });
    const ProgramStart start { { QStringLiteral("orvello://early") }, {}, {} };

    EXPECT_EQ(this->startAgain(this->place(), start).claim, RunningInstance::Claim::HandedOver);

    EXPECT_THAT(this->starts, ::testing::ElementsAre(start));
}

TYPED_TEST_P(RunningInstanceContract, leavesNothingWhenItEnds)
{
    ASSERT_EQ(this->first->claim({}).claim, RunningInstance::Claim::Granted);
    this->first.reset();

    EXPECT_THAT(this->files(), ::testing::IsEmpty());
    EXPECT_EQ(this->startAgain(this->place()).claim, RunningInstance::Claim::Granted);
}

REGISTER_TYPED_TEST_SUITE_P(RunningInstanceContract, isTheOneWhenNobodyElseRuns,
    handsEverythingToTheOneThatRuns, tellsTheSecondStartWhatCouldNotBeDone,
    letsAStartWaitUntilSomebodyListens, leavesNothingWhenItEnds);

} // namespace Orvello
