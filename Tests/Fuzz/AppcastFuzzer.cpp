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
    for (const AppcastItem& item : *items) {
        if (item.version.isEmpty())
            __builtin_trap();
    }
    const AppcastItem* const newest = Appcast::newest(*items, QStringLiteral("1"));
    if (newest && Appcast::newest(*items, newest->version))
        __builtin_trap();
    return 0;
}
