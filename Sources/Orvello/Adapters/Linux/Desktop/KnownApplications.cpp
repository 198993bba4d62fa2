#include "Orvello/Adapters/Linux/Desktop/KnownApplications.h"

#include <algorithm>
#include <array>

namespace Orvello::KnownApplications {

using namespace Qt::StringLiterals;

namespace {

struct Entry {
    const char* processName;
    QStringView bundleIdentifier;
    QStringView localizedName;
};

constexpr QStringView impressIdentifier = u"libreoffice-impress";
constexpr QStringView impressName = u"LibreOffice Impress";

constexpr std::array entries {
    Entry { "zoom", u"us.zoom.xos", u"Zoom" },
    Entry { "teams-for-linux", u"com.microsoft.teams2", u"Microsoft Teams" },
    Entry { "teams", u"com.microsoft.teams", u"Microsoft Teams" },
    Entry { "CiscoCollabHost", u"Cisco-Systems.Spark", u"Webex" },
    Entry { "webex", u"Cisco-Systems.Spark", u"Webex" },
    Entry { "slack", u"com.tinyspeck.slackmacgap", u"Slack" },
    Entry { "Discord", u"com.hnc.Discord", u"Discord" },
    Entry { "discord", u"com.hnc.Discord", u"Discord" },
    Entry { "skypeforlinux", u"com.skype.skype", u"Skype" },
    Entry { "soffice.bin", impressIdentifier, impressName },
};

/// All of LibreOffice is one program. Its document windows name their module in their class; its
/// slideshow's windows only name the product.
bool isLibreOffice(const X11WindowClass& windowClass)
{
    return windowClass.instance.compare("libreoffice"_L1, Qt::CaseInsensitive) == 0
        || windowClass.instance.startsWith("soffice"_L1, Qt::CaseInsensitive);
}

bool isModule(const X11WindowClass& windowClass)
{
    return windowClass.name.startsWith("libreoffice-"_L1);
}

} // namespace

std::optional<RunningApplication> withProcessName(QByteArrayView name)
{
    const auto entry = std::find_if(entries.begin(), entries.end(),
        [&](const Entry& known) { return name == known.processName; });
    if (entry == entries.end())
        return std::nullopt;
    return RunningApplication { entry->bundleIdentifier.toString(),
        entry->localizedName.toString() };
}

QStringList desktopEntries(const QString& bundleIdentifier)
{
    if (bundleIdentifier != u"us.zoom.xos")
        return {};
    // Zoom's own packages, Flatpak, and the snap.
    return { u"Zoom.desktop"_s, u"us.zoom.Zoom.desktop"_s, u"zoom-client_zoom-client.desktop"_s };
}

QString ownerName(const X11WindowClass& windowClass)
{
    const bool isSlideshow = isLibreOffice(windowClass) && !isModule(windowClass);
    return isSlideshow ? impressName.toString() : windowClass.name;
}

RunningApplication frontmost(const X11WindowClass& windowClass)
{
    if (isLibreOffice(windowClass)
        && (!isModule(windowClass) || windowClass.name == impressIdentifier))
        return { impressIdentifier.toString(), impressName.toString() };
    return { std::nullopt, ownerName(windowClass) };
}

} // namespace Orvello::KnownApplications
