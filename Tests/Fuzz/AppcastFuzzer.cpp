#include "Orvello/Shell/Updates/Appcast.h"

#include <cstddef>
#include <cstdint>

/// Feeds are foreign bytes: whatever they are, reading them ends, and what was read can be
/// compared.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace Orvello;
    const QByteArray xml(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto items = Appcast::parse(xml, QStringLiteral("linux"));
    if (!items)
        return 0;
    const Appcast::Host host { QStringLiteral("1"), QStringLiteral("6.1"),
        QStringLiteral("linux") };
    const AppcastItem* const newest = Appcast::newest(*items, host);
    for (const AppcastItem& item : *items) {
        const auto order = Appcast::compareVersions(item.version, host.version);
        if (item.version.isEmpty()
            || order != 0 <=> Appcast::compareVersions(host.version, item.version))
            __builtin_trap();
    }
    if (newest && Appcast::compareVersions(newest->version, host.version) <= 0)
        __builtin_trap();
    return 0;
}
