#include "Orvello/Foundation/AtomicFile.h"
#include "Orvello/Foundation/FileKeeper.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <pthread.h>
#include <system_error>
#include <thread>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

/// A process that gets no more threads: each would need a stack that no address space has.
class NoThreadTest : public ::testing::Test {
protected:
    NoThreadTest()
    {
        pthread_getattr_default_np(&m_before);
        pthread_attr_t impossible;
        pthread_getattr_default_np(&impossible);
        pthread_attr_setstacksize(&impossible, std::size_t { 1 } << 47);
        pthread_setattr_default_np(&impossible);
        pthread_attr_destroy(&impossible);
    }
    ~NoThreadTest() override
    {
        pthread_setattr_default_np(&m_before);
        pthread_attr_destroy(&m_before);
    }

    static QByteArray contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"file"_s);

private:
    pthread_attr_t m_before {};
};

TEST_F(NoThreadTest, isWhatItSays)
{
    EXPECT_THROW(std::thread([] {}).join(), std::system_error);
}

TEST_F(NoThreadTest, replacesFilesAllTheSame)
{
    for (const char* const bytes : { "one", "two", "three" })
        ASSERT_TRUE(AtomicFile::replace(path, bytes));

    EXPECT_EQ(contents(path), "three");
}

TEST_F(NoThreadTest, keepsFilesAllTheSame)
{
    FileKeeper keeper;
    ASSERT_TRUE(AtomicFile::replace(path, "one"));
    keeper.flushSoon(path);
    keeper.copySoon(path, path + u".last"_s, [](const QByteArray&) { return true; });

    keeper.finish();

    EXPECT_EQ(contents(AtomicFile::flushedName(path)), "one");
    EXPECT_EQ(contents(path + u".last"_s), "one");
}

} // namespace
} // namespace Orvello
