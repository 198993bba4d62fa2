#include "Orvello/Library/Store/DeckFiles.h"

#include "Orvello/Foundation/AtomicFile.h"
#include "Orvello/Foundation/PrivateFolder.h"
#include "Orvello/Library/Records/UuidText.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestFile = 16LL * 1024 * 1024;

} // namespace

DeckFiles::DeckFiles(const QString& path)
    : m_path(path)
{
}

void DeckFiles::load(const std::function<bool(QUuid)>& isKept)
{
    m_files.clear();
    QFile file(m_path);
    if (!QFileInfo(m_path).isFile() || file.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return;
    const QJsonObject files = QJsonDocument::fromJson(file.readAll()).object();
    for (auto entry = files.begin(); entry != files.end(); ++entry) {
        const auto script = UuidText::parse(entry.key());
        const QString path = entry.value()[u"path"].toString();
        if (script && !path.isEmpty() && isKept(*script))
            m_files.insert(*script,
                { path,
                    { entry.value()[u"modified"].toInteger(),
                        entry.value()[u"size"].toInteger() } });
    }
}

const DeckFile* DeckFiles::of(QUuid script) const
{
    const auto file = m_files.constFind(script);
    return file == m_files.constEnd() ? nullptr : &*file;
}

void DeckFiles::set(QUuid script, const DeckFile& file)
{
    if (const DeckFile* const known = of(script); known && *known == file)
        return;
    m_files.insert(script, file);
    save();
}

void DeckFiles::save() const
{
    if (m_isInMemory)
        return;
    QJsonObject files;
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file)
        files.insert(UuidText::format(file.key()),
            QJsonObject { { u"path"_s, file->path }, { u"modified"_s, file->stamp.modified },
                { u"size"_s, file->stamp.size } });
    const QByteArray json = QJsonDocument(files).toJson(QJsonDocument::Compact);
    makePrivateFolder(QFileInfo(m_path).path());
    // A failure is nothing to bother anybody with: the script asks for its file then.
    static_cast<void>(AtomicFile::replace(
        m_path, std::string_view(json.constData(), static_cast<std::size_t>(json.size()))));
}

} // namespace Orvello
