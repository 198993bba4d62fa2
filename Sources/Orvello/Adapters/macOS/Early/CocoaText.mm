#include "Orvello/Adapters/macOS/Early/CocoaText.h"

namespace Orvello {

NSString* nsString(const QString& text)
{
    return [NSString stringWithCharacters:reinterpret_cast<const unichar*>(text.utf16())
                                   length:static_cast<NSUInteger>(text.size())];
}

QString qString(NSString* text)
{
    QString copy(static_cast<qsizetype>(text.length), Qt::Uninitialized);
    [text getCharacters:reinterpret_cast<unichar*>(copy.data()) range:NSMakeRange(0, text.length)];
    return copy;
}

} // namespace Orvello
