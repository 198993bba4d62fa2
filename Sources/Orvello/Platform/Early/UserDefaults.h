#pragma once

#include <QString>
#include <QVariant>

namespace Orvello {

/// One domain of preference values: booleans, numbers and strings. A value of another kind that the
/// system keeps there can be copied, unread, from one domain to another. Main thread. What a setter
/// has stored survives even if the process dies right after the setter returns.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// The stored value, or an invalid variant when there is none. A launch-argument pair `-Key
    /// value` shadows the key as a string for this run.
    virtual QVariant value(const QString& key) const = 0;

    /// Stores the value at once. A shadowed key keeps reading as its launch argument.
    virtual void setValue(const QString& key, const QVariant& value) = 0;

    /// Removes what is stored under the key; a missing key is no error.
    virtual void remove(const QString& key) = 0;

    /// The name of the file whose preferences could not be read in this run, which is kept; empty
    /// if there is none.
    virtual QString damagedFile() const { return {}; }

    /// Everything stored in the domain, without launch arguments.
    virtual QVariantMap storedValues() const = 0;
};

} // namespace Orvello
