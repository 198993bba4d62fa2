#pragma once

class QQuickWindow;

namespace Orvello {

/// Gives the controls of a window the colours of the user's desktop, now and whenever they change.
/// Qt's own styles know only one light and one dark set. Where a desktop's own pair of colours is
/// hard to read, one of them is moved as far from the other as WCAG AA requires.
void followSystemPalette(QQuickWindow& window);

} // namespace Orvello
