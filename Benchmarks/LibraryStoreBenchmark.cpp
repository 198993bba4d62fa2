// What a key press costs, since each one saves the whole library, and what the launch costs that
// reads it.
//
// Limits: a one-character edit of 1,000 scripts and 10 MB takes at most 1.5 times what plainly
// writing and renaming a file of the same bytes takes; reading 10 MB takes under 150 ms.

#include "Benchmarks/AlternatingRuns.h"
#include "Orvello/Library/Records/ScriptCoding.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Platform/Early/Folders.h"
#include "Orvello/Platform/Early/TimeSource.h"
#include "Orvello/Platform/Early/UserDefaults.h"

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype megabyte = 1'000'000;

class ScratchFolders final : public Folders {
public:
    QString applicationSupport() const override { return m_directory.path(); }
    QString library() const { return m_directory.filePath(u"Orvello/scripts.json"_s); }
    QString beside() const { return m_directory.filePath(u"Orvello/plain.json"_s); }

private:
    QTemporaryDir m_directory;
};

class MemoryDefaults final : public UserDefaults {
public:
    QVariant value(const QString& key) const override { return m_values.value(key); }
    void setValue(const QString& key, const QVariant& value) override
    {
        m_values.insert(key, value);
    }
    void remove(const QString& key) override { m_values.remove(key); }
    QVariantMap storedValues() const override { return m_values; }

private:
    QVariantMap m_values;
};

class CountingTime final : public TimeSource {
public:
    double now() const override { return 0; }
    Date date() const override { return { 802345678.125 + 0.1 * ++m_calls }; }
    std::unique_ptr<Ticket> callAfter(double, Action) override { return nullptr; }
    std::unique_ptr<Ticket> callEvery(double, Action) override { return nullptr; }

private:
    mutable int m_calls = 0;
};

/// English prose with the quotation marks, line feeds and characters past ASCII that scripts have.
QString prose(qsizetype bytes)
{
    const QString paragraph
        = u"Good morning, and thank you for coming. “Why,” you may ask, “are we here?”\n"
          "Because last year's plan — the one we called \"simple\" — was anything but.\n\n"_s;
    QString text = paragraph.repeated(bytes / paragraph.toUtf8().size() + 1);
    text.truncate(bytes * text.size() / text.toUtf8().size());
    return text;
}

QList<Script> library(qsizetype scripts, qsizetype bytes)
{
    const QString body = prose(bytes / scripts);
    QList<Script> list;
    for (qsizetype i = 0; i < scripts; ++i)
        list.append(Script::create(
            u"Script %1"_s.arg(i), body + QString::number(i), { 802345678.25 + double(i) }));
    return list;
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        std::abort();
    return file.readAll();
}

/// The least that replacing a file can mean.
void writeAndRename(const QByteArray& bytes, const QByteArray& temporary, const QByteArray& path)
{
    const int descriptor
        = ::open(temporary.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t written = ::write(
            descriptor, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (written < 0)
            std::abort();
        done += written;
    }
    if (::close(descriptor) != 0 || ::rename(temporary.constData(), path.constData()) != 0)
        std::abort();
}

/// A key press in the middle script of a library, next to writing the same bytes plainly.
void measureEdit(qsizetype scripts, qsizetype bytes, std::size_t rounds)
{
    const ScratchFolders folders;
    CountingTime time;
    MemoryDefaults defaults;
    LibraryFile(folders).save(library(scripts, bytes));
    LibraryStore store(defaults, folders, time, {});
    store.setActiveScriptID(store.scripts()[scripts / 2].id);

    const QString one = store.activeScript()->body + u'x';
    const QString other = store.activeScript()->body + u'y';
    bool isOne = false;
    const QByteArray plainBytes = bytesOf(folders.library());
    const QByteArray plainPath = QFile::encodeName(folders.beside());
    const std::vector<double> seconds = medianSeconds(rounds,
        { [&] { store.updateActive(std::nullopt, (isOne = !isOne) ? one : other); },
            [&] { writeAndRename(plainBytes, plainPath + ".new", plainPath); } });

    std::printf("edit    %5lld scripts %6.1f MB: %8.2f ms, plain write and rename %8.2f ms, "
                "ratio %.2f\n",
        static_cast<long long>(scripts), double(plainBytes.size()) / megabyte, seconds[0] * 1e3,
        seconds[1] * 1e3, seconds[0] / seconds[1]);
}

/// A launch, next to reading the bytes and parsing them for nothing.
void measureRead(qsizetype scripts, qsizetype bytes, std::size_t rounds)
{
    const ScratchFolders folders;
    CountingTime time;
    MemoryDefaults defaults;
    LibraryFile(folders).save(library(scripts, bytes));
    const qsizetype fileSize = bytesOf(folders.library()).size();

    const std::vector<double> seconds = medianSeconds(rounds,
        { [&] {
             const LibraryStore store(defaults, folders, time, {});
             if (store.scripts().size() != scripts)
                 std::abort();
         },
            [&] {
                if (!QJsonDocument::fromJson(bytesOf(folders.library())).isArray())
                    std::abort();
            } });

    std::printf("read    %5lld scripts %6.1f MB: %8.2f ms, reading and parsing alone  %8.2f ms, "
                "ratio %.2f\n",
        static_cast<long long>(scripts), double(fileSize) / megabyte, seconds[0] * 1e3,
        seconds[1] * 1e3, seconds[0] / seconds[1]);
}

void measureEncoding(qsizetype bytes)
{
    const Script script = library(1, bytes).first();
    qsizetype size = 0;
    const std::vector<double> seconds
        = medianSeconds(51, { [&] { size = ScriptCoding::encode(script).size(); } });
    std::printf(
        "encode      1 script  %6.1f MB: %8.2f ms\n", double(size) / megabyte, seconds[0] * 1e3);
}

} // namespace
} // namespace Orvello

int main()
{
    using namespace Orvello;
    measureEdit(100, 1 * megabyte, 101);
    measureEdit(1000, 10 * megabyte, 51);
    measureEdit(1, 1 * megabyte, 101);
    measureEncoding(1 * megabyte);
    measureRead(100, 1 * megabyte, 31);
    measureRead(1000, 10 * megabyte, 15);
}
