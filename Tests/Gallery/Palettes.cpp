#include "Tests/Gallery/Palettes.h"

#include <QGuiApplication>

namespace Orvello::Gallery {

namespace {

/// A palette like those of the common desktops.
QPalette palette(Look look)
{
    if (look == Look::Light)
        return { QColor(239, 239, 239), QColor(239, 239, 239) };
    QPalette dark { QColor(50, 50, 50), QColor(50, 50, 50) };
    dark.setColor(QPalette::Base, QColor(36, 36, 36));
    dark.setColor(QPalette::Highlight, QColor(48, 140, 198));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Disabled, QPalette::Text, QColor(130, 130, 130));
    dark.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(130, 130, 130));
    return dark;
}

} // namespace

StagePalette::StagePalette(Look look)
    : m_before(QGuiApplication::palette())
{
    QGuiApplication::setPalette(palette(look));
}

StagePalette::~StagePalette() { QGuiApplication::setPalette(m_before); }

} // namespace Orvello::Gallery
