#include "Orvello/Settings/Store/LegacyMigration.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Foundation/AtomicFile.h"
#include "Orvello/Foundation/DefaultsValue.h"
#include "Orvello/Platform/Early/Folders.h"
#include "Orvello/Platform/Early/UserDefaults.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

namespace Orvello::LegacyMigration {

using namespace Qt::StringLiterals;

namespace fs = std::filesystem;

namespace {

constexpr const char* formerFolderName = "Drumlin";
constexpr const char* currentFolderName = "Orvello";

struct RenamedKey {
    QStringView former;
    QStringView current;
};
constexpr RenamedKey renamedKeys[] = { { u"ghostMode", u"stealthMode" } };

QString currentKey(const QString& formerKey)
{
    const auto* const renamed = std::ranges::find(renamedKeys, formerKey, &RenamedKey::former);
    return renamed != std::end(renamedKeys) ? renamed->current.toString() : formerKey;
}

void migratePreferences(UserDefaults& defaults, const UserDefaults& former)
{
    const QVariantMap values = former.storedValues();
    if (values.isEmpty())
        return;
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        const QString key = currentKey(entry.key());
        if (!defaults.value(key).isValid())
            defaults.setValue(key, entry.value());
    }
    // Deliberately the size of the former domain, with keys that were already set.
    AppLog::write("Orvello MIGRATE copied %ld preference keys from %@", values.size(),
        formerDomain.toString());
}

/// The array with every welcome script of the former product made the current one's; nothing when
/// there is none, or when this is not an array of objects.
std::optional<QJsonArray> withWelcomeScriptRefreshed(
    const QJsonDocument& library, const QString& sampleText)
{
    QJsonArray scripts = library.array();
    bool isChanged = false;
    for (auto&& element : scripts) {
        if (!element.isObject())
            return std::nullopt;
        QJsonObject script = element.toObject();
        if (script.value("title"_L1) != "Welcome to Drumlin"_L1)
            continue;
        script.insert("title"_L1,
            QCoreApplication::translate("Orvello::WelcomeScript", "Welcome to Orvello"));
        script.insert("body"_L1, sampleText);
        element = script;
        isChanged = true;
    }
    return isChanged ? std::optional(scripts) : std::nullopt;
}

void refreshWelcomeScript(const QString& path, const QString& sampleText)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const auto scripts
        = withWelcomeScriptRefreshed(QJsonDocument::fromJson(file.readAll()), sampleText);
    if (!scripts)
        return;
    const QByteArray json = QJsonDocument(*scripts).toJson(QJsonDocument::Compact);
    // Without the refresh the user keeps the former welcome text, which does no harm.
    static_cast<void>(AtomicFile::replace(path, json.toStdString()));
}

bool isThere(const fs::path& path)
{
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

/// Whether the current folder holds the application log and nothing else. The log opens before
/// anything else happens and makes its folder, so this is how the current folder looks by now for a
/// user who has never run this product.
bool holdsOnlyLogs(const fs::path& folder)
{
    std::error_code error;
    if (!fs::is_directory(fs::symlink_status(folder, error)))
        return false;
    fs::directory_iterator entry(folder, error);
    const bool isLogs = !error && entry != fs::directory_iterator()
        && entry->path().filename() == "logs" && entry->is_directory(error);
    return isLogs && entry.increment(error) == fs::directory_iterator() && !error;
}

/// The log files of one folder on their way to another, in place of that folder. The open log keeps
/// its descriptor, so whoever writes to it does not notice.
class LogMove {
public:
    LogMove(fs::path from, fs::path to)
        : m_from(std::move(from))
        , m_to(std::move(to))
    {
    }

    std::error_code move()
    {
        std::error_code error;
        if (!fs::is_directory(fs::symlink_status(m_to, error)))
            fs::remove(m_to, error); // A file or a link in the place of the logs.
        fs::create_directories(m_to, error);
        for (const fs::path& name : namesToMove(error)) {
            if (!error)
                fs::rename(m_from / name, m_to / name, error);
            if (!error)
                m_moved.push_back(name);
        }
        if (!error)
            fs::remove(m_from, error);
        return error;
    }

    /// Moves back what was moved.
    void undo() const
    {
        std::error_code ignored;
        fs::create_directories(m_from, ignored);
        for (const fs::path& name : m_moved)
            fs::rename(m_to / name, m_from / name, ignored);
    }

private:
    std::vector<fs::path> namesToMove(std::error_code& error) const
    {
        std::vector<fs::path> names;
        if (error)
            return names;
        for (fs::directory_iterator entry(m_from, error);
             !error && entry != fs::directory_iterator(); entry.increment(error))
            names.push_back(entry->path().filename());
        return names;
    }

    const fs::path m_from;
    const fs::path m_to;
    std::vector<fs::path> m_moved;
};

/// Makes `staging` the current folder, with the current logs, which are all that the current folder
/// holds if there is one. An error leaves the current folder as it was.
std::error_code putInPlace(const fs::path& staging, const fs::path& current)
{
    std::error_code error;
    if (!isThere(current)) {
        fs::rename(staging, current, error);
        return error;
    }
    LogMove logs(current / "logs", staging / "logs");
    error = logs.move();
    if (!error)
        fs::rename(staging, current, error); // An empty folder may be replaced.
    if (error)
        logs.undo();
    return error;
}

/// Copies `former` whole and makes the copy appear under `current` in one step, so that a copy cut
/// short, by an error or by the end of the process, never looks like a library.
std::error_code copyFolder(const fs::path& former, const fs::path& current)
{
    const fs::path staging = fs::path(current).concat(".migrating");
    std::error_code error;
    fs::remove_all(staging, error);
    // A former folder that is a link is copied, not linked to once more.
    fs::copy(fs::canonical(former, error), staging,
        fs::copy_options::recursive | fs::copy_options::copy_symlinks, error);
    if (!error)
        error = putInPlace(staging, current);
    std::error_code ignored;
    if (error)
        fs::remove_all(staging, ignored);
    return error;
}

void migrateSupportFolder(const Folders& folders, const QString& sampleText)
{
    const fs::path support = folders.applicationSupport().toStdString();
    const fs::path former = support / formerFolderName;
    const fs::path current = support / currentFolderName;
    std::error_code error;
    if (!fs::is_directory(former, error) || (isThere(current) && !holdsOnlyLogs(current)))
        return;
    error = copyFolder(former, current);
    if (error) {
        AppLog::write("Orvello MIGRATE support folder copy failed: %@", error.message());
        return;
    }
    AppLog::write(
        "Orvello MIGRATE copied Application Support/%@ -> %@", formerFolderName, currentFolderName);
    refreshWelcomeScript(QString::fromStdString((current / "scripts.json").string()), sampleText);
}

} // namespace

void runIfNeeded(const Accounts& accounts)
{
    const QString markerKey = u"migratedFromDrumlin"_s;
    if (DefaultsValue::asBoolean(accounts.defaults.value(markerKey)) == true)
        return;
    migratePreferences(accounts.defaults, accounts.formerDefaults);
    migrateSupportFolder(accounts.folders, accounts.sampleText);
    accounts.defaults.setValue(markerKey, true);
}

} // namespace Orvello::LegacyMigration
