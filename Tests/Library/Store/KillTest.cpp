#include "Orvello/Library/Store/LibraryStore.h"
#include "Tests/Support/FactsOf.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/ManualTimeSource.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

/// How often the writer is killed. More: make kill-test N=1000.
int kills()
{
    const char* const wanted = std::getenv("ORVELLO_KILLS");
    return wanted ? std::atoi(wanted) : 40;
}

class KillTest : public ::testing::Test {
protected:
    /// In a process of its own, until it is killed: types letters into the first script, deletes
    /// the last one and restores it. Tells of each step that it has finished.
    [[noreturn]] void work(int finished)
    {
        Testing::FakeUserDefaults defaults;
        Testing::ManualTimeSource time;
        LibraryStore store(defaults, folders, time, Testing::factsOfAMac());
        store.setActiveScriptID(store.scripts().first().id);
        for (int step = 1;; ++step) {
            char report = 'x';
            if (step % 50 == 0) {
                store.remove(store.scripts().last().id);
                store.restore(0);
                store.setActiveScriptID(store.scripts().first().id);
                report = '-';
            } else {
                store.editActive(store.scripts().first().body.size(), 0, u"x"_s);
            }
            if (::write(finished, &report, 1) != 1)
                std::_Exit(1);
        }
    }

    Testing::FakeFolders folders;
};

TEST_F(KillTest, losesNoMoreThanTheLastKeyAndNoScript)
{
    const QList<Script> scripts { Script::create(u"Typed"_s, u""_s, { 1 }),
        Script::create(u"Large"_s, QString(200'000, u'y'), { 1 }),
        Script::create(u"Deleted"_s, u"z"_s, { 1 }) };
    LibraryFile(folders).save(scripts);
    qsizetype typed = 0;
    qsizetype lost = 0;
    const int rounds = kills();
    ASSERT_GT(rounds, 0);

    for (int round = 0; round < rounds; ++round) {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        const pid_t worker = ::fork();
        if (worker == 0) {
            ::close(ends[0]);
            work(ends[1]);
        }
        ::close(ends[1]);
        ::usleep(QRandomGenerator::global()->bounded(60'000u)); // Any moment will do.
        ASSERT_EQ(::kill(worker, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(::waitpid(worker, &status, 0), worker);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the worker could not write";
        char reports[4096];
        for (ssize_t size = 0; (size = ::read(ends[0], reports, sizeof reports)) > 0;)
            typed += std::count(reports, reports + size, 'x');
        ::close(ends[0]);

        LibraryFile file(folders);
        const QList<Script> found = file.load();
        ASSERT_EQ(file.found(), LibraryFile::Found::Library) << "round " << round;
        const qsizetype length = found.first().body.size();
        lost = std::max(lost, typed - length);
        ASSERT_TRUE(length == typed || length == typed + 1) << length << " not " << typed;
        typed = length;
        DeletedScripts deleted(folders.path + u"/Orvello/deleted.json"_s);
        deleted.load({ 1 });
        ASSERT_TRUE(found.contains(scripts[1]));
        ASSERT_TRUE(found.contains(scripts[2]) || deleted.scripts().first().script == scripts[2]);
        if (!found.contains(scripts[2])) { // Killed between the two: the user restores it.
            Testing::FakeUserDefaults defaults;
            Testing::ManualTimeSource time;
            time.setDate({ 2 });
            LibraryStore store(defaults, folders, time, {});
            store.restore(0);
        }
    }
    std::cout << rounds << " kills, " << typed << " letters typed, " << lost << " lost\n";
}

} // namespace
} // namespace Orvello
