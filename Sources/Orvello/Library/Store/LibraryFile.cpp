#include "Orvello/Library/Store/LibraryFile.h"

#include "Orvello/Foundation/AtomicFile.h"
#include "Orvello/Foundation/JsonReader.h"
#include "Orvello/Library/Records/ScriptCoding.h"
#include "Orvello/Platform/Early/Folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <vector>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

QByteArray contents(const QString& path)
{
    // A pipe or a device in the file's place could block the launch or never end.
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > Json::maximumSize
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
    // Now rather than at the first save, so that the first key press is as quick as any other.
    encodeChanges(scripts);
    return scripts;
}

void LibraryFile::save(const QList<Script>& scripts)
{
    encodeChanges(scripts);

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

void LibraryFile::encodeChanges(const QList<Script>& scripts)
{
    // An edit, an insertion and a removal each leave a head and a tail of the list as they were.
    const qsizetype shorter = std::min(scripts.size(), m_scripts.size());
    qsizetype head = 0;
    while (head < shorter && scripts[head] == m_scripts[head])
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head
        && scripts[scripts.size() - 1 - tail] == m_scripts[m_scripts.size() - 1 - tail])
        ++tail;

    QList<QByteArray> encoded = m_encoded.first(head);
    encoded.reserve(scripts.size());
    for (qsizetype i = head; i < scripts.size() - tail; ++i)
        encoded.append(ScriptCoding::encode(scripts[i]));
    encoded += m_encoded.last(tail);

    m_encoded = std::move(encoded);
    m_scripts = scripts;
}

} // namespace Orvello
