#include "Orvello/Prompting/Panel/PrompterPanelController.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Foundation/Observe.h"
#include "Orvello/Platform/Desktop/Screens.h"
#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Prompting/Panel/CaptureExclusion.h"
#include "Orvello/Prompting/Panel/PanelFrame.h"
#include "Orvello/Settings/Store/SettingsStore.h"

namespace Orvello {

using namespace Qt::StringLiterals;
using SharingType = NativePanel::SharingType;

namespace {

constexpr double watchdogPeriod = 2.0; // Seconds.
constexpr double reassertionDelay = 0.1; // Seconds the window server may need to place a window.
constexpr double pointsPerScrollDelta = 3.0;

/// Which of the two mechanisms are in use, for experiments: "shape", "flag", or both for anything
/// else.
QString stealthMechanisms() { return qEnvironmentVariable("ORVELLO_STEALTH", u"both"_s); }

QString onOrOff(bool on) { return on ? u"ON"_s : u"OFF"_s; }

} // namespace

PrompterPanelController::PrompterPanelController(const Services& services, bool forceCapturable)
    : m_panel(services.panel)
    , m_presentation(services.presentation)
    , m_time(services.time)
    , m_stealthLog(services.folders)
    , m_forceCapturable(forceCapturable)
{
    placePanel(services.screens);
    connect(&m_panel, &NativePanel::scrolled, &services.engine,
        [&engine = services.engine](double delta) { engine.nudge(pointsPerScrollDelta * delta); });
    applyStealthMode(services.settings.stealthMode());
    watchResizes();
    observe(m_presentation, &PresentationMonitor::inCall, &PresentationMonitor::inCallChanged,
        *this, [this](bool inCall) { callChanged(inCall); });
    m_stealthWatchdog = m_time.callEvery(watchdogPeriod, [this] { checkWindow(); });
    AppLog::write("Orvello PANEL_UP frame=%@ sharing=%ld sckExclude=%d",
        PanelFrame::description(m_panel.frame()), static_cast<long>(m_panel.sharingType()),
        static_cast<int>(CaptureExclusion::isUsable()));
}

PrompterPanelController::~PrompterPanelController() = default;

bool PrompterPanelController::isVisibleInRecordings() const
{
    return m_wantsStealth && !m_panel.canExcludeFromCapture();
}

void PrompterPanelController::placePanel(const Screens& screens)
{
    const QList<QRectF> frames = screens.frames();
    m_panel.setFrame(
        PanelFrame::initial(frames.isEmpty() ? PanelFrame::assumedScreen : frames.first()));
    m_panel.setFrameAutosaveName(u"PrompterPanel"_s);
}

void PrompterPanelController::applyStealthMode(bool on)
{
    const bool wasVisibleInRecordings = isVisibleInRecordings();
    const bool effective = on && !m_forceCapturable;
    const bool isChange = effective != m_stealthOn;
    m_wantsStealth = on;
    m_stealthOn = effective;
    const QString mode = stealthMechanisms();
    const SharingType desired
        = !effective || mode == u"shape" ? SharingType::ReadOnly : SharingType::None;

    const qint64 wid = m_panel.windowNumber();
    const bool fresh = applySharingType(desired, wid);
    const bool applied = applyShape(effective, mode);
    if (wid >= 1) {
        m_appliedWid = wid;
        m_appliedSharing = desired;
    }

    m_stealthLog.write(u"APPLY "_s + onOrOff(effective) + u" wid="_s + QString::number(wid)
        + u" fresh="_s + (fresh ? u"true"_s : u"false"_s) + u" mode="_s + mode + u" shape="_s
        + (applied ? u"1"_s : u"0"_s));
    AppLog::write("Orvello STEALTH %@ wid=%ld fresh=%d mode=%@ sckExcludeApplied=%d",
        onOrOff(effective), wid, static_cast<int>(fresh), mode, static_cast<int>(applied));
    if (isChange)
        Q_EMIT stealthOnChanged();
    if (isVisibleInRecordings() != wasVisibleInRecordings)
        Q_EMIT visibleInRecordingsChanged();
}

/// Sets the sharing type and returns whether the window is a fresh one.
bool PrompterPanelController::applySharingType(SharingType desired, qint64 windowNumber)
{
    if (windowNumber >= 1 && windowNumber != m_appliedWid) {
        // The window server takes notice of a change only, not of the type that a window was
        // created with.
        if (m_panel.sharingType() == desired)
            m_panel.setSharingType(
                desired == SharingType::None ? SharingType::ReadOnly : SharingType::None);
        m_panel.setSharingType(desired);
        return true;
    }
    if (m_appliedSharing != desired)
        m_panel.setSharingType(desired);
    return false;
}

bool PrompterPanelController::applyShape(bool on, const QString& mode)
{
    const bool isWanted = on && mode != u"flag";
    return CaptureExclusion::setExcluded(isWanted, m_panel.windowNumber(), m_panel.frame().size());
}

void PrompterPanelController::reassertStealth()
{
    applyStealthMode(m_wantsStealth);
    if (!m_stealthOn || m_panel.windowNumber() >= 1)
        return;
    m_delayedReassertions.push_back(m_time.callAfter(reassertionDelay, [this] {
        if (m_stealthOn)
            applyStealthMode(true);
    }));
}

void PrompterPanelController::watchResizes()
{
    connect(&m_panel, &NativePanel::didResize, this, [this] {
        if (m_stealthOn && !m_panel.inLiveResize())
            reapplyShapeOrPostpone();
    });
    connect(&m_panel, &NativePanel::didEndLiveResize, this, [this] {
        if (m_stealthOn)
            reapplyShapeOrPostpone();
    });
}

void PrompterPanelController::reapplyShapeOrPostpone()
{
    if (m_presentation.inCall()) {
        // Changing the exclusion while the screen is shared is what can leave the prompter grey in
        // the shared picture.
        m_pendingShapeReapply = true;
        m_stealthLog.write(u"SHAPE reapply postponed (in call)"_s);
        AppLog::write("Orvello SHAPE reapply postponed (in call)");
        return;
    }
    coverCurrentFrame();
    m_stealthLog.write(u"SHAPE reapplied after resize"_s);
}

void PrompterPanelController::coverCurrentFrame()
{
    CaptureExclusion::setExcluded(true, m_panel.windowNumber(), m_panel.frame().size());
}

void PrompterPanelController::callChanged(bool inCall)
{
    if (inCall || !m_pendingShapeReapply)
        return;
    m_pendingShapeReapply = false;
    if (m_stealthOn)
        coverCurrentFrame();
}

void PrompterPanelController::checkWindow()
{
    const qint64 wid = m_panel.windowNumber();
    if (!m_stealthOn || !m_panel.isVisible() || wid < 1 || wid == m_appliedWid)
        return;
    m_stealthLog.write(u"HEAL window recreated %1 -> %2, re-applying"_s.arg(m_appliedWid).arg(wid));
    AppLog::write("Orvello STEALTH HEAL wid %ld -> %ld", m_appliedWid, wid);
    applyStealthMode(m_stealthOn);
}

} // namespace Orvello
