#include "Orvello/Shell/Launch/LaunchOptions.h"

#include "Orvello/Shell/Launch/CommandLineTable.h"
#include "Orvello/Shell/Launch/LaunchArguments.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

struct Switch {
    QStringView name;
    bool LaunchOptions::*member;
};
constexpr std::array switches {
    Switch { u"--autostart", &LaunchOptions::autostart },
    Switch { u"--check-updates", &LaunchOptions::checkUpdates },
    Switch { u"--help", &LaunchOptions::help },
    Switch { u"--no-stealth", &LaunchOptions::noStealth },
    Switch { u"--onboarding", &LaunchOptions::onboarding },
    Switch { u"--scripts", &LaunchOptions::scripts },
    Switch { u"--settings", &LaunchOptions::settings },
    Switch { u"--toggle", &LaunchOptions::toggle },
    Switch { u"--version", &LaunchOptions::version },
    Switch { u"--voice", &LaunchOptions::voice },
};

/// Whether it starts with the scheme of an address, as RFC 3986 writes it.
bool isAddress(const QString& operand)
{
    static const QRegularExpression scheme(u"^[A-Za-z][A-Za-z0-9+.-]+:"_s);
    return scheme.match(operand).hasMatch() && QUrl(operand, QUrl::StrictMode).isValid();
}

/// Which of the two it is, its content says later.
bool isDeck(const QString& extension)
{
    return extension.compare(u"pptx"_s, Qt::CaseInsensitive) == 0
        || extension.compare(u"odp"_s, Qt::CaseInsensitive) == 0;
}

} // namespace

LaunchOptions LaunchOptions::of(const ProgramStart& start)
{
    const LaunchArguments::Parts parts = LaunchArguments::parts(start.arguments);
    const QDir directory(start.directory);
    LaunchOptions options;
    options.preferences = parts.preferences;
    options.environment = start.environment;
    const auto imported = start.environment.constFind(u"ORVELLO_IMPORT_PPTX"_s);
    if (imported != start.environment.constEnd())
        options.importedPath = directory.absoluteFilePath(imported->toString());
    for (const QString& key : parts.preferences.keys()) {
        // Nobody's preference, but an option that lacks a dash and would swallow the file behind
        // it.
        if (std::ranges::find(switches, u"--"_s + key, &Switch::name) != switches.end())
            options.mistakes.append(
                tr("unknown option %1; did you mean %2?").arg(u"-"_s + key, u"--"_s + key));
    }
    for (const QString& option : parts.options)
        options.takeOption(option);
    for (const QString& operand : parts.operands)
        options.takeOperand(operand, directory);
    return options;
}

ProgramStart LaunchOptions::thisStart(const QStringList& arguments)
{
    QVariantMap environment;
    for (const CommandLineTable::Entry& entry : CommandLineTable::entries()) {
        const QByteArray name(entry.name.data(), static_cast<qsizetype>(entry.name.size()));
        if (entry.section == CommandLineTable::Section::Environment
            && qEnvironmentVariableIsSet(name))
            environment.insert(QString::fromLatin1(name), qEnvironmentVariable(name));
    }
    return { arguments, QDir::currentPath(), environment };
}

void LaunchOptions::takeOption(const QString& option)
{
    const auto* const known = std::ranges::find(switches, option, &Switch::name);
    if (known != switches.end()) {
        this->*(known->member) = true;
        return;
    }
    const QString nearest = CommandLineTable::nearestOption(option);
    if (!nearest.isEmpty())
        mistakes.append(tr("unknown option %1; did you mean %2?").arg(option, nearest));
    else if (option.startsWith(u"--"_s))
        mistakes.append(tr("unknown option %1").arg(option));
    else
        mistakes.append(tr("%1 is neither an option nor a preference with a value").arg(option));
}

/// A file that exists is a file, even if its name looks like an address.
void LaunchOptions::takeOperand(const QString& operand, const QDir& directory)
{
    if (isAddress(operand) && !QFileInfo::exists(directory.absoluteFilePath(operand)))
        takeAddress(operand, directory);
    else
        takeFile(operand, directory);
}

void LaunchOptions::takeAddress(const QString& address, const QDir& directory)
{
    const QUrl url(address, QUrl::StrictMode);
    const bool isOnThisComputer = url.host().isEmpty() || url.host() == u"localhost"_s;
    if (url.scheme() == u"orvello"_s)
        urls.append(url);
    else if (url.scheme() == u"file"_s && isOnThisComputer)
        takeFile(url.path(QUrl::FullyDecoded), directory);
    else
        mistakes.append(tr("%1 is no address that Orvello opens").arg(address));
}

void LaunchOptions::takeFile(const QString& name, const QDir& directory)
{
    const QFileInfo file(directory.absoluteFilePath(name));
    if (name.isEmpty() || !file.exists())
        mistakes.append(tr("there is no file \"%1\"").arg(name));
    else if (!isDeck(file.suffix()))
        mistakes.append(tr("%1 is not a deck (.pptx or .odp)").arg(name));
    else
        files.append(QDir::cleanPath(file.filePath()));
}

} // namespace Orvello
