#include "Orvello/Adapters/macOS/Early/CocoaUserDefaults.h"

#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/PropertyList.h"

namespace Orvello {

namespace {

/// Outside a bundle (a program in the build folder) the domain has the program's name.
NSString* ownDomain()
{
    NSString* const identifier = NSBundle.mainBundle.bundleIdentifier;
    return identifier ? identifier : NSProcessInfo.processInfo.processName;
}

/// NSUserDefaults writes through a daemon; this waits until the daemon has the value, so that a
/// process that dies right after a change has kept it.
void settle(NSUserDefaults* defaults) { [defaults synchronize]; }

} // namespace

CocoaUserDefaults::CocoaUserDefaults()
    : m_defaults(NSUserDefaults.standardUserDefaults)
    , m_domain(ownDomain())
{
}

CocoaUserDefaults::CocoaUserDefaults(const QString& domain)
    : m_defaults([[NSUserDefaults alloc] initWithSuiteName:nsString(domain)])
    , m_domain(nsString(domain))
{
}

QVariant CocoaUserDefaults::value(const QString& key) const
{
    return PropertyList::value([m_defaults objectForKey:nsString(key)]);
}

void CocoaUserDefaults::setValue(const QString& key, const QVariant& value)
{
    if (!value.isValid()) {
        remove(key);
        return;
    }
    const id object = PropertyList::object(value);
    Q_ASSERT(object);
    if (!object)
        return; // Storing anything else but a property-list object raises an exception.
    [m_defaults setObject:object forKey:nsString(key)];
    settle(m_defaults);
}

void CocoaUserDefaults::remove(const QString& key)
{
    [m_defaults removeObjectForKey:nsString(key)];
    settle(m_defaults);
}

QVariantMap CocoaUserDefaults::storedValues() const
{
    NSDictionary<NSString*, id>* const domain = [m_defaults persistentDomainForName:m_domain];
    QVariantMap values;
    for (NSString* key in domain)
        values.insert(qString(key), PropertyList::value([domain objectForKey:key]));
    return values;
}

} // namespace Orvello
