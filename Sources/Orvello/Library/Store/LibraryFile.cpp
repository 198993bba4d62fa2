#include "Orvello/Library/Store/LibraryFile.h"

#include "Orvello/Foundation/AtomicFile.h"
#include "Orvello/Foundation/PrivateFolder.h"
#include "Orvello/Library/Records/ScriptCoding.h"
#include "Orvello/Platform/Early/Folders.h"

#include <QFile>
#include <QFileInfo>

#include <utility>
#include <vector>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// A thousand times what a prolific writer has.
constexpr qint64 largestFile = 1'000'000'000;

QByteArray contents(const QString& path)
{
    // A pipe or a device in the file's place could block the launch or never end.
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > largestFile
        || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    return file.readAll();
}

} // namespace

LibraryFile::LibraryFile(const Folders& folders)
    : m_folders(folders)
{
}

QString LibraryFile::path() const
{
    return m_folders.applicationSupport() + u"/Orvello/scripts.json"_s;
}

QString LibraryFile::copyPath() const { return path() + u".last"_s; }

QString LibraryFile::preparedPath() const
{
    const QString prepared = path();
    makePrivateFolder(QFileInfo(prepared).path());
    return prepared;
}

std::optional<QList<Script>> LibraryFile::read(const QString& path)
{
    return ScriptCoding::decode(contents(path));
}

QList<Script> LibraryFile::load()
{
    const QString prepared = preparedPath();
    std::optional<QList<Script>> scripts = read(prepared);
    m_found = scripts                  ? Found::Library
        : QFileInfo(prepared).isFile() ? Found::Damage
                                       : Found::Nothing;
    // Now rather than at the first save, so that the first key press is as fast as any other.
    encode(scripts.value_or(QList<Script> {}));
    return std::move(scripts).value_or(QList<Script> {});
}

bool LibraryFile::save(const QList<Script>& scripts)
{
    encode(scripts);
    return save();
}

void LibraryFile::keepCopy()
{
    m_keeper.copySoon(path(), copyPath(),
        [](const QByteArray& bytes) { return ScriptCoding::decode(bytes).has_value(); });
}

bool LibraryFile::save(const QList<Script>& scripts, const LibraryChange& change)
{
    take(scripts, change);
    return save();
}

void LibraryFile::take(const QList<Script>& scripts, const LibraryChange& change)
{
    switch (change.kind) {
    case LibraryChange::Kind::Inserted:
        m_encoded.insert(change.row, ScriptCoding::encode(scripts[change.row]));
        break;
    case LibraryChange::Kind::Removed:
        m_encoded.removeAt(change.row);
        break;
    case LibraryChange::Kind::Moved:
        m_encoded.move(change.row, change.newRow);
        break;
    case LibraryChange::Kind::Edited:
        m_encoded[change.row] = ScriptCoding::encode(scripts[change.row]);
        break;
    }
    Q_ASSERT(m_encoded.size() == scripts.size());
}

void LibraryFile::encode(const QList<Script>& scripts)
{
    m_encoded.clear();
    m_encoded.reserve(scripts.size());
    for (const Script& script : scripts)
        m_encoded.append(ScriptCoding::encode(script));
}

bool LibraryFile::save()
{
    std::vector<std::string_view> pieces;
    pieces.reserve(static_cast<std::size_t>(m_encoded.size()) * 2 + 2);
    pieces.emplace_back("[");
    for (const QByteArray& script : m_encoded) {
        if (pieces.size() > 1)
            pieces.emplace_back(",");
        pieces.emplace_back(script.constData(), static_cast<std::size_t>(script.size()));
    }
    pieces.emplace_back("]");

    const QString prepared = preparedPath();
    m_problem.clear();
    const bool isSaved
        = AtomicFile::replace(prepared, pieces, AtomicFile::Durability::Written, &m_problem);
    if (isSaved)
        m_keeper.flushSoon(prepared);
    return isSaved;
}

} // namespace Orvello
