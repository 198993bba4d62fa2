#include "Orvello/Shell/Windows/SettingsWindow.h"

#include "Orvello/Platform/Desktop/AssignedKeys.h"
#include "Orvello/Platform/Desktop/Compositing.h"
#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"
#include "Orvello/Prompting/Engine/ReadingPace.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Shell/Updates/UpdateController.h"
#include "Orvello/Shell/Windows/ImpressAdviceDialog.h"
#include "Orvello/Shell/Windows/SystemPalette.h"
#include "Orvello/Shell/Windows/ViewWindow.h"
#include "Orvello/Shell/Windows/WindowPlacement.h"
#include "Orvello/Voice/VoiceActivityEngine.h"

#include "Version.h"

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

SettingsWindow::SettingsWindow(const Services& services, PanelSpace panel)
    : m_form(services.settings)
    , m_shortcuts(services.hotKeys, ShortcutList::Width::Full)
    , m_panel(std::move(panel))
{
    m_view.setTitle(tr("Orvello Settings"));
    m_view.setFlags(ViewWindow::titledAndClosable);
    m_view.resize(contentSize);
    ViewWindow::load(m_view, u"SettingsView"_s,
        {
            { u"settings"_s, QVariant::fromValue(&services.settings) },
            { u"form"_s, QVariant::fromValue(&m_form) },
            { u"voice"_s, QVariant::fromValue(&services.voice) },
            { u"updates"_s, QVariant::fromValue(&services.updates) },
            { u"version"_s, QString::fromLatin1(version) },
            { u"shortcuts"_s, QVariant::fromValue(&m_shortcuts) },
            { u"compositing"_s, QVariant::fromValue(&services.compositing) },
            { u"facts"_s, QVariant::fromValue(services.facts) },
            { u"impress"_s, QVariant::fromValue(services.impress) },
            { u"pace"_s, QVariant::fromValue(&services.pace) },
            { u"impressConsent"_s, ImpressAdviceDialog::consentText() },
        });
    followSystemPalette(m_view);
}

void SettingsWindow::bringToFront()
{
    WindowPlacement::bringToFrontFixed(m_view, { contentSize, smallestSize }, m_panel);
}

} // namespace Orvello
