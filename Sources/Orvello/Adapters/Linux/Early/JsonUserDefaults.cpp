#include "Orvello/Adapters/Linux/Early/JsonUserDefaults.h"

#include "Orvello/Foundation/AtomicFile.h"
#include "Orvello/Foundation/PrivateFolder.h"
#include "Orvello/Shell/Launch/LaunchArguments.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <optional>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// Preferences take a few kilobytes; no file of this size holds them.
constexpr qint64 maximumSize = 64LL * 1024 * 1024;

std::optional<QJsonObject> readPreferences(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > maximumSize
        || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

QString unusedName(const QString& wanted)
{
    QString name = wanted;
    for (int number = 2; QFileInfo::exists(name); ++number)
        name = wanted + u'-' + QString::number(number);
    return name;
}

} // namespace

JsonUserDefaults::JsonUserDefaults(
    const QString& configurationFolder, const QString& domain, const QStringList& arguments)
    : m_path(configurationFolder + u"/Orvello/"_s + domain + u".json"_s)
    , m_launchArguments(LaunchArguments::preferences(arguments))
{
    load();
}

QVariant JsonUserDefaults::value(const QString& key) const
{
    const auto argument = m_launchArguments.find(key);
    return argument != m_launchArguments.end() ? *argument : m_stored.value(key).toVariant();
}

void JsonUserDefaults::setValue(const QString& key, const QVariant& value)
{
    if (!value.isValid()) {
        remove(key);
        return;
    }
    change(key, QJsonValue::fromVariant(value));
}

void JsonUserDefaults::remove(const QString& key)
{
    if (m_stored.contains(key))
        change(key, QJsonValue(QJsonValue::Undefined));
}

void JsonUserDefaults::change(const QString& key, const QJsonValue& value)
{
    m_changed[key] = value;
    m_stored.insert(key, value); // An undefined value removes the key.
    save();
}

void JsonUserDefaults::load()
{
    if (!QFileInfo::exists(m_path))
        return;
    const std::optional<QJsonObject> stored = readPreferences(m_path);
    m_stored = stored.value_or(QJsonObject {});
    m_isFileDamaged = !stored;
    if (m_isFileDamaged)
        m_damagedFile = QFileInfo(m_path).fileName();
}

void JsonUserDefaults::save()
{
    makePrivateFolder(QFileInfo(m_path).path());
    if (const std::optional<QJsonObject> current = readPreferences(m_path)) {
        m_isFileDamaged = false;
        m_stored = *current;
        for (auto changed = m_changed.begin(); changed != m_changed.end(); ++changed)
            m_stored.insert(changed.key(), changed.value());
    } else {
        m_isFileDamaged = QFileInfo::exists(m_path);
    }
    if (m_isFileDamaged && !moveDamagedFileAside())
        return;
    if (AtomicFile::replace(m_path, QJsonDocument(m_stored).toJson().toStdString()))
        m_keeper.flushSoon(m_path);
}

bool JsonUserDefaults::moveDamagedFileAside()
{
    const QString name = unusedName(m_path + u".damaged"_s);
    m_isFileDamaged = !QFile::rename(m_path, name);
    if (!m_isFileDamaged)
        m_damagedFile = QFileInfo(name).fileName();
    return !m_isFileDamaged;
}

} // namespace Orvello
