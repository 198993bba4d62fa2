#pragma once

#include "Orvello/Platform/Early/UserDefaults.h"

#import <Foundation/Foundation.h>

namespace Orvello {

/// A domain of the system's user defaults. The system itself lets the launch arguments shadow what
/// is stored.
class CocoaUserDefaults final : public UserDefaults {
public:
    CocoaUserDefaults(); ///< The program's own domain, which has the name of its bundle.
    explicit CocoaUserDefaults(const QString& domain); ///< Another program's.

    QVariant value(const QString& key) const override;
    void setValue(const QString& key, const QVariant& value) override;
    void remove(const QString& key) override;
    QVariantMap storedValues() const override;

private:
    NSUserDefaults* m_defaults;
    NSString* m_domain;
};

} // namespace Orvello
