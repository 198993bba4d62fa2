#pragma once

#include "Orvello/Platform/Early/UserDefaults.h"
#include "Tests/Support/Journal.h"

namespace Orvello::Testing {

/// Preferences in memory. `launchArguments` shadow stored values, as the pairs of a command line
/// do.
class FakeUserDefaults final : public UserDefaults {
public:
    QVariant value(const QString& key) const override
    {
        return launchArguments.contains(key) ? launchArguments.value(key) : stored.value(key);
    }
    void setValue(const QString& key, const QVariant& value) override
    {
        note(journal, "default " + key.toStdString() + " stored");
        stored.insert(key, value);
        ++writes;
    }
    void remove(const QString& key) override { stored.remove(key); }
    QVariantMap storedValues() const override { return stored; }

    Journal* journal = nullptr;
    QVariantMap stored;
    QVariantMap launchArguments;
    int writes = 0;
};

} // namespace Orvello::Testing
