#pragma once

#include "Orvello/Foundation/FileKeeper.h"
#include "Orvello/Platform/Early/UserDefaults.h"

#include <QHash>
#include <QJsonObject>
#include <QStringList>

namespace Orvello {

/// User defaults as one JSON object in a file per domain, read once and written whole, atomically,
/// at each change; what another process has changed meanwhile stays, but for the keys that were
/// changed here. A number without a fraction counts as an integer, and the last of the values that
/// a file gives one key counts. A file that cannot be read or makes no sense counts as empty, but
/// is not lost: the first change moves it aside, to its name with ".damaged" at the end.
class JsonUserDefaults final : public UserDefaults {
public:
    /// The file is Orvello/<domain>.json in the configuration folder, which need not exist. The
    /// pairs `-Key value` among `arguments` shadow what is stored.
    JsonUserDefaults(const QString& configurationFolder, const QString& domain,
        const QStringList& arguments = {});

    QVariant value(const QString& key) const override;
    void setValue(const QString& key, const QVariant& value) override;
    void remove(const QString& key) override;
    QVariantMap storedValues() const override { return m_stored.toVariantMap(); }
    QString damagedFile() const override { return m_damagedFile; }

private:
    void load();
    void change(const QString& key, const QJsonValue& value);
    void save();
    bool moveDamagedFileAside();

    QString m_path;
    QVariantMap m_launchArguments;
    QJsonObject m_stored;
    QHash<QString, QJsonValue>
        m_changed; ///< What was set here, by key; undefined for what was removed.
    bool m_isFileDamaged = false;
    QString m_damagedFile;
    FileKeeper m_keeper;
};

} // namespace Orvello
