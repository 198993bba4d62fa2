#include "Orvello/Foundation/Utf8.h"

#include <QStringDecoder>

namespace Orvello::Utf8 {

QString decodedOrEmpty(QByteArrayView bytes)
{
    // Stateless, so that a sequence cut off at the end is an error too.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(bytes);
    return decoder.hasError() ? QString() : text;
}

} // namespace Orvello::Utf8
