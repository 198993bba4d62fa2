#pragma once

#include <QString>

namespace Orvello {

class Folders;
class UserDefaults;

/// Carries preferences and scripts over from the product's former name, Drumlin, once for each user
/// account. It must run before anything reads the preferences or the library.
namespace LegacyMigration {

struct Accounts {
    UserDefaults& defaults; ///< The current standard user defaults.
    const UserDefaults& formerDefaults; ///< The domain `formerDomain`.
    const Folders& folders;
    QString sampleText; ///< The new body for a former welcome script.
};

/// The former product's preferences domain.
inline constexpr QStringView formerDomain = u"app.drumlin.mac";

/// Migrates what there is and sets the marker "migratedFromDrumlin", whether or not that succeeded;
/// does nothing when the marker is set. Never fails: what cannot be carried over stays where it is.
void runIfNeeded(const Accounts& accounts);

} // namespace LegacyMigration
} // namespace Orvello
