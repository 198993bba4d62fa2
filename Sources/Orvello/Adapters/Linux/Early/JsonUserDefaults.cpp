#include "Orvello/Adapters/Linux/Early/JsonUserDefaults.h"

#include "Orvello/Adapters/Linux/Early/PreferencesCoding.h"
#include "Orvello/Foundation/AtomicFile.h"
#include "Orvello/Shell/Launch/LaunchArguments.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// Preferences take a few kilobytes; no file of this size holds them.
constexpr qint64 maximumSize = 64LL * 1024 * 1024;

std::optional<QVariantMap> readPreferences(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > maximumSize
        || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    return PreferencesCoding::decode(file.readAll());
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
    return argument != m_launchArguments.end() ? *argument : m_stored.value(key);
}

void JsonUserDefaults::setValue(const QString& key, const QVariant& value)
{
    if (!value.isValid()) {
        remove(key);
        return;
    }
    Q_ASSERT(PreferencesCoding::isStorable(value));
    m_stored.insert(key, value);
    save();
}

void JsonUserDefaults::remove(const QString& key)
{
    if (m_stored.remove(key) > 0)
        save();
}

void JsonUserDefaults::load()
{
    if (!QFileInfo::exists(m_path))
        return;
    const std::optional<QVariantMap> stored = readPreferences(m_path);
    m_stored = stored.value_or(QVariantMap {});
    m_isFileDamaged = !stored;
}

void JsonUserDefaults::save()
{
    QDir().mkpath(QFileInfo(m_path).path());
    if (m_isFileDamaged && !moveDamagedFileAside())
        return;
    static_cast<void>(
        AtomicFile::replace(m_path, PreferencesCoding::encode(m_stored).toStdString()));
}

bool JsonUserDefaults::moveDamagedFileAside()
{
    m_isFileDamaged = !QFile::rename(m_path, unusedName(m_path + u".damaged"_s));
    return !m_isFileDamaged;
}

} // namespace Orvello
