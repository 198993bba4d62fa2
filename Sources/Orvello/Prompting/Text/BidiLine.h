#pragma once

#include <QString>

/// Lines cut out of bidirectional paragraphs.
namespace Orvello::BidiLine {

/// What ends a paragraph: a line feed, a carriage return and their kin.
[[nodiscard]] bool isParagraphEnd(QChar character);

/// The characters of `text` from `start` to `end` with the invisible marks they need to be shown,
/// alone and in a paragraph direction found by their first strong character, as they are shown
/// inside their paragraph. Embeddings that begin on an earlier line are not carried over.
[[nodiscard]] QString cutOut(
    const QString& text, qsizetype start, qsizetype end, bool paragraphIsRightToLeft);

} // namespace Orvello::BidiLine
