#include "Orvello/Shell/LaunchOptions.h"

#include "Orvello/Platform/LaunchArguments.h"

namespace Orvello {

using namespace Qt::StringLiterals;

LaunchOptions LaunchOptions::fromArguments(const QStringList& arguments)
{
    return {
        .help = arguments.contains(u"--help"_s),
        .version = arguments.contains(u"--version"_s),
        .noStealth = arguments.contains(u"--no-stealth"_s),
        .onboarding = arguments.contains(u"--onboarding"_s),
        .checkUpdates = arguments.contains(u"--check-updates"_s),
        .voice = arguments.contains(u"--voice"_s),
        .autostart = arguments.contains(u"--autostart"_s),
        .urls = LaunchArguments::urls(arguments),
    };
}

} // namespace Orvello
