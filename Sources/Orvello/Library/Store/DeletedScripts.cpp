#include "Orvello/Library/Store/DeletedScripts.h"

#include "Orvello/Foundation/AtomicFile.h"
#include "Orvello/Foundation/PrivateFolder.h"
#include "Orvello/Library/Records/ScriptCoding.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <optional>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestFile = 1'000'000'000;

QByteArray encode(const QList<DeletedScript>& scripts)
{
    QByteArray json = "[";
    for (const DeletedScript& deleted : scripts) {
        if (json.size() > 1)
            json += ',';
        json += "{\"deletedAt\":"
            + QByteArray::number(
                deleted.deletedAt.secondsSinceReferenceDate, 'g', QLocale::FloatingPointShortest)
            + ",\"row\":" + QByteArray::number(deleted.row)
            + ",\"script\":" + ScriptCoding::encode(deleted.script) + '}';
    }
    return json + ']';
}

std::optional<QList<DeletedScript>> decode(const QByteArray& json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isArray())
        return std::nullopt;
    QList<DeletedScript> scripts;
    for (const QJsonValue& value : document.array()) {
        const auto script = ScriptCoding::decode(value[u"script"].toObject());
        if (!script || !value[u"deletedAt"].isDouble())
            return std::nullopt;
        scripts.append({ *script, { value[u"deletedAt"].toDouble() },
            static_cast<qsizetype>(value[u"row"].toInteger()) });
    }
    return scripts;
}

} // namespace

DeletedScripts::DeletedScripts(const QString& path)
    : m_path(path)
{
}

void DeletedScripts::load(Date now)
{
    m_scripts.clear();
    QFile file(m_path);
    if (!QFileInfo(m_path).isFile() || file.size() > largestFile
        || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return;
    const auto stored = decode(file.readAll());
    file.close();
    if (!stored) {
        QFile::rename(m_path,
            m_path + u".damaged-"_s + QString::number(static_cast<qint64>(now.unixSeconds())));
        return;
    }
    m_scripts = *stored;
    const auto isTooOld = [now](const DeletedScript& deleted) {
        return now.secondsSinceReferenceDate - deleted.deletedAt.secondsSinceReferenceDate
            > keptSeconds;
    };
    if (m_scripts.removeIf(isTooOld) > 0)
        save();
}

void DeletedScripts::add(const DeletedScript& deleted)
{
    m_scripts.prepend(deleted);
    save();
}

void DeletedScripts::remove(qsizetype place)
{
    m_scripts.removeAt(place);
    save();
}

void DeletedScripts::save()
{
    makePrivateFolder(QFileInfo(m_path).path());
    const QByteArray json = encode(m_scripts);
    m_isSaved = AtomicFile::replace(m_path,
        std::string_view(json.constData(), static_cast<std::size_t>(json.size())),
        AtomicFile::Durability::Flushed, &m_problem);
}

} // namespace Orvello
