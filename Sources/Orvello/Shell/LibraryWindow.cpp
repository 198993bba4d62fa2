#include "Orvello/Shell/LibraryWindow.h"

#include "Orvello/Shell/SystemPalette.h"
#include "Orvello/Shell/WindowPlacement.h"

#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QScreen>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize firstSize(720, 480);
constexpr QSize smallestSize(660, 440);

} // namespace

LibraryWindow::LibraryWindow(const Services& services)
    : m_library(services)
{
    m_view.engine()->addImportPath(u"qrc:/qt/qml"_s);
    m_view.setTitle(QCoreApplication::translate("LibraryWindow", "Scripts"));
    m_view.setFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint
        | Qt::WindowSystemMenuHint | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint);
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_view.setMinimumSize(smallestSize);
    m_view.setInitialProperties({ { u"library"_s, QVariant::fromValue(&m_library) } });
    followSystemPalette(m_view);
    m_view.setSource(QUrl(u"qrc:/qt/qml/Orvello/LibraryView.qml"_s));
    Q_ASSERT(m_view.rootObject()); // The view is part of the program.
    m_view.resize(firstSize);
}

LibraryWindow::~LibraryWindow() = default;

void LibraryWindow::makeKeyAndOrderFront()
{
    if (!std::exchange(m_wasShown, true))
        centre();
    WindowPlacement::bringToFront(m_view);
}

void LibraryWindow::centre()
{
    QRect frame(QPoint(), m_view.size());
    frame.moveCenter(m_view.screen()->availableGeometry().center());
    m_view.setFramePosition(frame.topLeft());
}

} // namespace Orvello
