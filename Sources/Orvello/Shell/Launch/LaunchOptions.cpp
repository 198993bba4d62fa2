#include "Orvello/Shell/Launch/LaunchOptions.h"

#include "Orvello/Shell/Launch/LaunchArguments.h"

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

QString LaunchOptions::helpText()
{
    return uR"(Usage: orvello [options] [-Key value ...] [address ...]

A private teleprompter: your script in a small panel under the camera. When it runs already, it
does what a second start asks for, or opens its menu.

Options:
  --autostart      start scrolling at once
  --check-updates  look for a newer version
  --no-stealth     never hide the prompter from screen sharing
  --onboarding     show the welcome tour
  --voice          follow the voice: the text moves while you speak
  --help           show this text and exit
  --version        show the version and exit
  -Key value       use this text for a preference, for this run only

Environment:
  ORVELLO_IMPORT_PPTX      import the .pptx file at this path at launch
  ORVELLO_ONBOARDING_PAGE  open the welcome tour on this page, 0 to 2
  ORVELLO_STEALTH          hide the prompter by "flag" or by "shape" alone, for experiments

Signals:
  SIGUSR1          turn Stealth Mode on or off
  SIGUSR2          show or hide the prompter
  SIGTERM, SIGINT  quit
)"_s;
}

} // namespace Orvello
