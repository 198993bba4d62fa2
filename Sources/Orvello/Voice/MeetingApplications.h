#pragma once

#include <QStringView>

#include <algorithm>
#include <array>

/// The applications that people hold calls with, by the bundle identifiers that a Workspace gives
/// them on every platform.
namespace Orvello::MeetingApplications {

inline constexpr std::array<QStringView, 9> bundleIdentifiers {
    u"us.zoom.xos",
    u"com.microsoft.teams2",
    u"com.microsoft.teams",
    u"Cisco-Systems.Spark",
    u"com.cisco.webexmeetingsapp",
    u"com.apple.FaceTime",
    u"com.tinyspeck.slackmacgap",
    u"com.hnc.Discord",
    u"com.skype.skype",
};

/// Exact comparison.
[[nodiscard]] inline bool contain(QStringView bundleIdentifier)
{
    return std::find(bundleIdentifiers.begin(), bundleIdentifiers.end(), bundleIdentifier)
        != bundleIdentifiers.end();
}

} // namespace Orvello::MeetingApplications
