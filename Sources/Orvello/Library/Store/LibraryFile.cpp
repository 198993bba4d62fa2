#include "Orvello/Library/Store/LibraryFile.h"

#include "Orvello/Foundation/AtomicFile.h"
#include "Orvello/Library/Records/ScriptCoding.h"
#include "Orvello/Platform/Early/Folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

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

QString LibraryFile::preparedPath() const
{
    const QDir folder(m_folders.applicationSupport() + u"/Orvello"_s);
    folder.mkpath(u"."_s);
    return folder.filePath(u"scripts.json"_s);
}

QList<Script> LibraryFile::load()
{
    QList<Script> scripts
        = ScriptCoding::decode(contents(preparedPath())).value_or(QList<Script> {});
    // Now rather than at the first save, so that the first key press is as fast as any other.
    encode(scripts);
    return scripts;
}

void LibraryFile::save(const QList<Script>& scripts)
{
    encode(scripts);
    write();
}

void LibraryFile::save(const QList<Script>& scripts, const LibraryChange& change)
{
    switch (change.kind) {
    case LibraryChange::Kind::Inserted:
        m_encoded.insert(change.row, ScriptCoding::encode(scripts[change.row]));
        break;
    case LibraryChange::Kind::Removed:
        m_encoded.removeAt(change.row);
        break;
    case LibraryChange::Kind::Edited:
        m_encoded[change.row] = ScriptCoding::encode(scripts[change.row]);
        break;
    }
    Q_ASSERT(m_encoded.size() == scripts.size());
    write();
}

void LibraryFile::encode(const QList<Script>& scripts)
{
    m_encoded.clear();
    m_encoded.reserve(scripts.size());
    for (const Script& script : scripts)
        m_encoded.append(ScriptCoding::encode(script));
}

void LibraryFile::write() const
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

    static_cast<void>(AtomicFile::replace(preparedPath(), pieces));
}

} // namespace Orvello
