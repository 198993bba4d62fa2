#pragma once

#include <QImage>
#include <QStringList>

class QQuickWindow;

namespace Orvello::Gallery {

/// What is wrong with a picture of the window as it is now, each fault in a line; nothing when all
/// that is due is there. Each text that is wholly in sight must have left ink of its colour where
/// it stands, and no sign may be missing from its fonts. On the prompter's card, each line in full
/// view must be there, at the side where it begins, and nothing at the card's edges may lie over
/// another or over a line.
[[nodiscard]] QStringList faultsOf(const QQuickWindow& window, const QImage& picture);

} // namespace Orvello::Gallery
