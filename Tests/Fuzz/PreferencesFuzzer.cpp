// Any bytes for a file of preferences: they count as empty, or give values that survive being
// written. Either way a change is kept.

#include "Orvello/Adapters/Linux/Early/JsonUserDefaults.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

using namespace Orvello;
using namespace Qt::StringLiterals;

namespace {

JsonUserDefaults open(const QTemporaryDir& folder) { return { folder.path(), u"fuzz"_s }; }

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QTemporaryDir folder(u"/dev/shm/orvello-fuzz-XXXXXX"_s); // A disk is slow.
    QDir(folder.path()).removeRecursively(); // What was moved aside goes, too.
    QDir().mkpath(folder.filePath(u"Orvello"_s));
    QFile file(folder.filePath(u"Orvello/fuzz.json"_s));
    if (!file.open(QIODevice::WriteOnly)
        || file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size)) < 0)
        std::abort();
    file.close();

    JsonUserDefaults defaults = open(folder);
    defaults.setValue(u"changed"_s, 0.5);

    if (open(folder).storedValues() != defaults.storedValues()
        || open(folder).value(u"changed"_s) != QVariant(0.5))
        std::abort();
    return 0;
}
