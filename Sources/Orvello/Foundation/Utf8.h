#pragma once

#include <QByteArrayView>
#include <QString>

namespace Orvello::Utf8 {

/// The text, or an empty one when any byte of it is not UTF-8.
[[nodiscard]] QString decodedOrEmpty(QByteArrayView bytes);

} // namespace Orvello::Utf8
