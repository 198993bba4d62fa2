#pragma once

#include "Orvello/Platform/Early/UserDefaults.h"

#include <QJsonObject>
#include <QStringList>

namespace Orvello {

/// User defaults as one JSON object in a file per domain, read once and written whole, atomically,
/// at each change. A number without a fraction counts as an integer. A file that cannot be read or
/// makes no sense counts as empty, but is not lost: the first change moves it aside, to its name
/// with ".damaged" at the end.
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

private:
    void load();
    void save();
    bool moveDamagedFileAside();

    QString m_path;
    QVariantMap m_launchArguments;
    QJsonObject m_stored;
    bool m_isFileDamaged = false;
};

} // namespace Orvello
