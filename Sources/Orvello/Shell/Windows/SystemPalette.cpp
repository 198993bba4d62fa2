#include "Orvello/Shell/Windows/SystemPalette.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QQuickWindow>

#include <algorithm>
#include <array>
#include <cmath>

namespace Orvello {

namespace {

struct NamedRole {
    const char* name;
    QPalette::ColorRole role;
};

/// The controls, by the names that the views use.
constexpr std::array namedRoles {
    NamedRole { "alternateBase", QPalette::AlternateBase },
    NamedRole { "base", QPalette::Base },
    NamedRole { "brightText", QPalette::BrightText },
    NamedRole { "button", QPalette::Button },
    NamedRole { "buttonText", QPalette::ButtonText },
    NamedRole { "dark", QPalette::Dark },
    NamedRole { "highlight", QPalette::Highlight },
    NamedRole { "highlightedText", QPalette::HighlightedText },
    NamedRole { "light", QPalette::Light },
    NamedRole { "link", QPalette::Link },
    NamedRole { "linkVisited", QPalette::LinkVisited },
    NamedRole { "mid", QPalette::Mid },
    NamedRole { "midlight", QPalette::Midlight },
    NamedRole { "placeholderText", QPalette::PlaceholderText },
    NamedRole { "shadow", QPalette::Shadow },
    NamedRole { "text", QPalette::Text },
    NamedRole { "toolTipBase", QPalette::ToolTipBase },
    NamedRole { "toolTipText", QPalette::ToolTipText },
    NamedRole { "window", QPalette::Window },
    NamedRole { "windowText", QPalette::WindowText },
};

/// WCAG 2.1, "relative luminance".
double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

bool isReadable(const QColor& one, const QColor& other)
{
    constexpr double enough = 4.5; // WCAG 2.1 AA, for text of ordinary size.
    const auto [darker, lighter] = std::minmax({ luminance(one), luminance(other) });
    return (lighter + 0.05) / (darker + 0.05) >= enough;
}

QColor mixed(const QColor& color, const QColor& with, double share)
{
    const auto mix = [share](float a, float b) { return a + (b - a) * static_cast<float>(share); };
    return QColor::fromRgbF(mix(color.redF(), with.redF()), mix(color.greenF(), with.greenF()),
        mix(color.blueF(), with.blueF()));
}

/// The colour, or the first on its way to black or white that stands out against the other one.
QColor madeReadable(const QColor& color, const QColor& against)
{
    const QColor opaque = mixed(against, color, color.alphaF());
    const QColor goal = luminance(opaque) < luminance(against) ? Qt::black : Qt::white;
    for (int percent = 0; percent < 100; percent += 5) {
        const QColor candidate = mixed(opaque, goal, percent / 100.0);
        if (isReadable(candidate, against))
            return candidate;
    }
    return goal;
}

QPalette readablePalette()
{
    QPalette palette = QGuiApplication::palette();
    for (const QPalette::ColorGroup group : { QPalette::Active, QPalette::Inactive }) {
        const auto color = [&](QPalette::ColorRole role) { return palette.color(group, role); };
        palette.setColor(group, QPalette::Highlight,
            madeReadable(color(QPalette::Highlight), color(QPalette::HighlightedText)));
        palette.setColor(group, QPalette::PlaceholderText,
            madeReadable(color(QPalette::PlaceholderText), color(QPalette::Base)));
    }
    return palette;
}

void setColors(QObject* group, const QPalette& palette, QPalette::ColorGroup of)
{
    for (const NamedRole& named : namedRoles)
        group->setProperty(named.name, palette.color(of, named.role));
}

void setColors(QQuickWindow& window)
{
    const QPalette palette = readablePalette();
    auto* const colors = window.property("palette").value<QObject*>();
    setColors(colors, palette, QPalette::Active);
    setColors(colors->property("inactive").value<QObject*>(), palette, QPalette::Inactive);
    setColors(colors->property("disabled").value<QObject*>(), palette, QPalette::Disabled);
    window.setColor(palette.color(QPalette::Window));
}

/// Gives a window the application's present colours.
class PaletteFollower final : public QObject {
public:
    explicit PaletteFollower(QQuickWindow& window)
        : QObject(&window)
        , m_window(window)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::ApplicationPaletteChange)
            setColors(m_window);
        return false;
    }

private:
    QQuickWindow& m_window;
};

} // namespace

void followSystemPalette(QQuickWindow& window)
{
    setColors(window);
    new PaletteFollower(window);
}

} // namespace Orvello
