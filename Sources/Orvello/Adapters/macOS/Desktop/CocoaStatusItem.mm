#include "Orvello/Adapters/macOS/Desktop/CocoaStatusItem.h"

#include "Orvello/Adapters/macOS/Desktop/CocoaMenu.h"
#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/ExceptionShield.h"
#include "Orvello/Diagnostics/AppLog.h"

#include <QBuffer>
#include <QIcon>
#include <QPixmap>

namespace Orvello {

namespace {

constexpr int glyphSide = 18; ///< In points.

NSData* pngOf(const QPixmap& pixmap)
{
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    pixmap.save(&buffer, "PNG");
    return [NSData dataWithBytes:png.constData() length:static_cast<NSUInteger>(png.size())];
}

/// A picture whose opaque parts the bar paints in its own colour, for screens of both densities.
NSImage* templateImage(const QIcon& glyph, const QString& description)
{
    const NSSize size { glyphSide, glyphSide };
    NSImage* const image = [[NSImage alloc] initWithSize:size];
    for (const int pixelsPerPoint : { 1, 2 }) {
        const QPixmap pixmap = glyph.pixmap(QSize(glyphSide, glyphSide), pixelsPerPoint);
        NSBitmapImageRep* const picture = [NSBitmapImageRep imageRepWithData:pngOf(pixmap)];
        if (!picture)
            continue;
        picture.size = size; // The size in points, by which AppKit tells the densities apart.
        [image addRepresentation:picture];
    }
    [image setTemplate:YES]; // No property syntax: the name is a keyword of C++.
    image.accessibilityDescription = nsString(description);
    return image;
}

} // namespace

CocoaStatusItem::CocoaStatusItem(Menu& menu, const QIcon& glyph, const QString& description)
    : m_menu([[CocoaMenu alloc] initWithMenu:menu])
{
    shielded([&] {
        m_item = [NSStatusBar.systemStatusBar statusItemWithLength:NSSquareStatusItemLength];
        m_item.button.image = templateImage(glyph, description);
        m_item.menu = m_menu.nativeMenu;
        AppLog::write("TRAY status item shown");
    });
}

CocoaStatusItem::~CocoaStatusItem()
{
    if (m_item)
        shielded([&] { [NSStatusBar.systemStatusBar removeStatusItem:m_item]; });
}

/// Below the item, where the user looks for it. The click lasts as long as the menu is open, and
/// whoever asks for it has an event to finish.
void CocoaStatusItem::openMenu()
{
    [m_item.button performSelector:@selector(performClick:) withObject:nil afterDelay:0];
}

} // namespace Orvello
