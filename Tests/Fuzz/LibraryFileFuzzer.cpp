// Any bytes for a library file: they are refused, or give scripts that survive being written.

#include "Orvello/Library/Records/ScriptCoding.h"

#include <cstdint>
#include <cstdlib>

using namespace Orvello;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto scripts = ScriptCoding::decode(
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!scripts)
        return 0;

    QByteArrayList encoded;
    for (const Script& script : *scripts)
        encoded.append(ScriptCoding::encode(script));
    if (ScriptCoding::decode('[' + encoded.join(',') + ']') != scripts)
        std::abort();
    return 0;
}
