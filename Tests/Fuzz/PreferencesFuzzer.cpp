// Any bytes for a file of preferences: they are refused, or give values that survive being written.

#include "Orvello/Adapters/Linux/Early/PreferencesCoding.h"

#include <cstdint>
#include <cstdlib>

using namespace Orvello;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto preferences = PreferencesCoding::decode(
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!preferences)
        return 0;

    // Compared as text, since a value that is not a number does not equal itself.
    const QByteArray encoded = PreferencesCoding::encode(*preferences);
    const auto again = PreferencesCoding::decode(encoded);
    if (!again || PreferencesCoding::encode(*again) != encoded)
        std::abort();
    return 0;
}
