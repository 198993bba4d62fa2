#pragma once

#include <QImage>
#include <QRasterWindow>

namespace Orvello {

/// The panel's shadow, where the desktop has translucent windows: a window of its own around the
/// panel, which clicks go through. So the panel's window is no larger than the panel, and neither
/// its frame nor its edges nor its frames a second know of a shadow.
class X11Shadow final : public QRasterWindow {
    Q_OBJECT

public:
    X11Shadow();

    std::uint32_t number() const { return static_cast<std::uint32_t>(winId()); }

    void surround(const QRect& panel); ///< The panel's frame.

    /// How far the shadow's window reaches beyond the panel on each side, in points.
    static constexpr int margin = 32;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const QImage& tile(double scale);

    QImage m_tile; ///< The shadow of the smallest panel; all of a larger one is in it, too.
};

} // namespace Orvello
