#include "Orvello/Adapters/Portable/SocketInstance.h"

#include "Tests/Adapters/RunningInstanceContract.h"

#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <memory>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Claim = RunningInstance::Claim;
using Outcome = RunningInstance::Outcome;

class SocketInstanceTest : public Testing::InstanceFixture<SocketInstance, QString> {
protected:
    QString place() const override { return logs(); }

    /// Says something else than a start would.
    int connectAndSay(const QByteArray& bytes) const
    {
        const QByteArray path = QFile::encodeName(place() + u"/running.socket"_s);
        const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        std::copy(path.begin(), path.end(), address.sun_path);
        EXPECT_EQ(::connect(descriptor, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(::write(descriptor, bytes.constData(), static_cast<std::size_t>(bytes.size())),
            bytes.size());
        return descriptor;
    }
};

INSTANTIATE_TYPED_TEST_SUITE_P(SocketInstance, RunningInstanceContract, SocketInstanceTest);

TEST_F(SocketInstanceTest, saysThatTheOneThatRunsDoesNotAnswer)
{
    ASSERT_EQ(first->claim({}).claim, Claim::Granted);
    ASSERT_TRUE(QFile::remove(place() + u"/running.socket"_s));

    const Outcome outcome = startAgain(place());

    EXPECT_EQ(outcome.claim, Claim::Unanswered);
    EXPECT_THAT(outcome.messages, SizeIs(1));
}

TEST_F(SocketInstanceTest, takesOverWhatADeadProcessLeft)
{
    const pid_t child = ::fork();
    if (child == 0) {
        auto* const neverEnded = new SocketInstance(place());
        ::_exit(neverEnded->claim({}).claim == Claim::Granted ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
    ASSERT_TRUE(QFile::exists(place() + u"/running.lock"_s));

    ASSERT_EQ(first->claim({}).claim, Claim::Granted);
    listen();
    EXPECT_EQ(startAgain(place()).claim, Claim::HandedOver);
}

TEST_F(SocketInstanceTest, isOneWhereThePathIsTooLongForASocket)
{
    const QString far = folder.filePath(QString(120, u'x'));
    SocketInstance one(far);
    ASSERT_EQ(one.claim({}).claim, Claim::Granted);

    EXPECT_EQ(startAgain(far).claim, Claim::Unanswered);
}

TEST_F(SocketInstanceTest, ignoresWhoeverSaysSomethingElse)
{
    ASSERT_EQ(first->claim({}).claim, Claim::Granted);
    listen();

    for (const QByteArray& said : { QByteArray("hello\n"), QByteArray("[1]\n"), QByteArray("{") })
        ::close(connectAndSay(said));

    EXPECT_EQ(startAgain(place(), { { u"--voice"_s }, {}, {} }).claim, Claim::HandedOver);
    EXPECT_THAT(starts, ElementsAre(ProgramStart { { u"--voice"_s }, {}, {} }));
}

TEST_F(SocketInstanceTest, hangsUpOnWhoeverNeverEnds)
{
    ASSERT_EQ(first->claim({}).claim, Claim::Granted);
    listen();
    const int caller = connectAndSay("{");
    const std::unique_ptr<QThread> thread(QThread::create([caller] {
        const QByteArray block(1 << 16, 'x');
        static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
        while (::write(caller, block.constData(), static_cast<std::size_t>(block.size())) > 0) { }
    }));
    thread->start();

    EXPECT_TRUE(QTest::qWaitFor([&] { return thread->isFinished(); }, 30'000));
    ::close(caller);
}

TEST_F(SocketInstanceTest, runsWhereNoFileCanBeMade)
{
    QFile obstacle(place());
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));

    EXPECT_EQ(first->claim({}).claim, Claim::Granted);
}

} // namespace
} // namespace Orvello
