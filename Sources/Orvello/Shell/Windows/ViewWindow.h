#pragma once

#include <QVariantMap>

class QQuickView;

/// What the windows that show one of the program's views have in common.
namespace Orvello::ViewWindow {

/// The flags of a window with a title and a close button, and no other button.
inline constexpr Qt::WindowFlags titledAndClosable = Qt::Window | Qt::CustomizeWindowHint
    | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

/// Fills the window with the view of that name ("PrompterView"), which is given its properties.
/// Where it cannot be loaded, the process says so and ends.
void load(QQuickView& window, const QString& view, const QVariantMap& properties);

} // namespace Orvello::ViewWindow
