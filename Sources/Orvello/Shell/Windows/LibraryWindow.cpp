#include "Orvello/Shell/Windows/LibraryWindow.h"

#include "Orvello/Shell/Windows/SystemPalette.h"
#include "Orvello/Shell/Windows/ViewWindow.h"
#include "Orvello/Shell/Windows/WindowPlacement.h"

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize firstSize(720, 480);
constexpr QSize smallestSize(660, 440);

} // namespace

LibraryWindow::LibraryWindow(
    const Services& services, PanelSpace panel, std::function<void(qsizetype)> startReadingAt)
    : m_library(services, std::move(startReadingAt))
    , m_panel(std::move(panel))
{
    m_view.setTitle(tr("Scripts"));
    m_view.setFlags(ViewWindow::titledAndClosable | Qt::WindowMaximizeButtonHint);
    m_view.setMinimumSize(smallestSize);
    ViewWindow::load(
        m_view, u"LibraryView"_s, { { u"library"_s, QVariant::fromValue(&m_library) } });
    followSystemPalette(m_view);
    m_view.resize(firstSize);
}

LibraryWindow::~LibraryWindow() = default;

void LibraryWindow::bringToFront()
{
    WindowPlacement::bringToFront(m_view, { m_view.size(), smallestSize }, m_panel);
}

} // namespace Orvello
