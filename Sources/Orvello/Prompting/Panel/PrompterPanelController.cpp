#include "Orvello/Prompting/Panel/PrompterPanelController.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Foundation/Assign.h"
#include "Orvello/Foundation/Observe.h"
#include "Orvello/Platform/Desktop/CaptureHiding.h"
#include "Orvello/Platform/Desktop/Screens.h"
#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Prompting/Panel/PanelFrame.h"
#include "Orvello/Settings/Store/SettingsStore.h"

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr double watchdogPeriod = 2.0; // Seconds.
constexpr double reassertionDelay = 0.1; // Seconds the window server may need to place a window.
constexpr double pointsPerScrollDelta = 3.0;

// The numbers that the log uses for the two, which are those of macOS.
constexpr long sharingNone = 0;
constexpr long sharingReadOnly = 1;

/// Which of the two mechanisms are in use, for experiments: "shape", "flag", or both for anything
/// else.
QString stealthMechanisms() { return qEnvironmentVariable("ORVELLO_STEALTH", u"both"_s); }

QString onOrOff(bool on) { return on ? u"ON"_s : u"OFF"_s; }

} // namespace

PrompterPanelController::PrompterPanelController(
    const Services& services, bool forceCapturable, const CaptureExclusion& captureExclusion)
    : m_panel(services.panel)
    , m_hiding(services.panel.captureHiding())
    , m_screens(services.screens)
    , m_presentation(services.presentation)
    , m_time(services.time)
    , m_stealthLog(services.folders)
    , m_captureExclusion(captureExclusion)
    , m_forceCapturable(forceCapturable)
{
    placePanel();
    connect(&m_panel, &NativePanel::scrolled, &services.engine,
        [&engine = services.engine](double delta) { engine.nudge(pointsPerScrollDelta * delta); });
    applyStealthMode(services.settings.stealthMode());
    watchResizes();
    observe(m_presentation, &PresentationMonitor::inCall, &PresentationMonitor::inCallChanged,
        *this, [this](bool inCall) { callChanged(inCall); });
    m_stealthWatchdog = m_time.callEvery(watchdogPeriod, [this] { checkWindow(); });
    AppLog::write("Orvello PANEL_UP frame=%@ sharing=%ld sckExclude=%d",
        PanelFrame::description(m_panel.frame(), m_screens.frames()),
        m_hiding.isHidden() ? sharingNone : sharingReadOnly,
        static_cast<int>(m_captureExclusion.isUsable()));
}

PrompterPanelController::~PrompterPanelController() = default;

void PrompterPanelController::publishVisibility()
{
    using Reach = CaptureHiding::Reach;
    const Reach reach = m_hiding.reach();
    // Where the shape is what hides the panel, it is so only once the window server took it.
    const bool isVisible = m_wantsStealth
        && (reach == Reach::NoCapture
            || (reach == Reach::SomeCaptures && m_stealthOn && !m_isShapeApplied));
    if (assign(m_isVisibleInRecordings, isVisible))
        Q_EMIT visibleInRecordingsChanged();
}

void PrompterPanelController::placePanel()
{
    m_panel.setFrame(PanelFrame::initial(m_screens.frames()));
    m_panel.saveFrameAs(u"PrompterPanel"_s);
}

void PrompterPanelController::putUnderCamera()
{
    m_panel.setFrame(
        PanelFrame::underCamera(m_panel.frame().size(), m_screens.pointer(), m_screens.frames()));
}

void PrompterPanelController::applyStealthMode(bool on)
{
    const bool effective = on && !m_forceCapturable;
    m_stealthOn = effective;
    m_wantsStealth = on;
    const QString mode = stealthMechanisms();
    const bool isHidden = effective && mode != u"shape";

    const qint64 wid = m_hiding.windowNumber();
    const bool fresh = hideFromCaptures(isHidden, wid);
    const bool applied = applyShape(effective, mode);
    m_isShapeApplied = effective && applied && mode != u"flag";
    if (wid >= 1) {
        m_appliedWid = wid;
        m_appliedHidden = isHidden;
    }

    m_stealthLog.write(u"APPLY "_s + onOrOff(effective) + u" wid="_s + QString::number(wid)
        + u" fresh="_s + (fresh ? u"true"_s : u"false"_s) + u" mode="_s + mode + u" shape="_s
        + (applied ? u"1"_s : u"0"_s));
    AppLog::write("Orvello STEALTH %@ wid=%ld fresh=%d mode=%@ sckExcludeApplied=%d",
        onOrOff(effective), wid, static_cast<int>(fresh), mode, static_cast<int>(applied));
    publishVisibility();
}

/// Returns whether the window is a new one.
bool PrompterPanelController::hideFromCaptures(bool isHidden, qint64 windowNumber)
{
    if (windowNumber >= 1 && windowNumber != m_appliedWid) {
        // The window server notices only a change, not what a window was created with.
        if (m_hiding.isHidden() == isHidden)
            m_hiding.setHidden(!isHidden);
        m_hiding.setHidden(isHidden);
        return true;
    }
    if (m_appliedHidden != isHidden)
        m_hiding.setHidden(isHidden);
    return false;
}

bool PrompterPanelController::applyShape(bool on, const QString& mode)
{
    const bool isWanted = on && mode != u"flag";
    return m_captureExclusion.setExcluded(
        isWanted, m_hiding.windowNumber(), m_panel.frame().size());
}

void PrompterPanelController::reassertStealth()
{
    applyStealthMode(m_wantsStealth);
    if (!m_stealthOn || m_hiding.windowNumber() >= 1)
        return;
    m_delayedReassertions.push_back(m_time.callAfter(reassertionDelay, [this] {
        if (m_stealthOn)
            applyStealthMode(true);
    }));
}

void PrompterPanelController::watchResizes()
{
    connect(&m_panel, &NativePanel::resized, this, [this] {
        if (m_stealthOn && !m_panel.isBeingResized())
            reapplyShapeOrPostpone();
    });
    connect(&m_panel, &NativePanel::resizeEnded, this, [this] {
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
    m_isShapeApplied
        = m_captureExclusion.setExcluded(true, m_hiding.windowNumber(), m_panel.frame().size());
    publishVisibility();
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
    const qint64 wid = m_hiding.windowNumber();
    if (!m_stealthOn || !m_panel.isVisible() || wid < 1 || wid == m_appliedWid)
        return;
    m_stealthLog.write(u"HEAL window recreated %1 -> %2, re-applying"_s.arg(m_appliedWid).arg(wid));
    AppLog::write("Orvello STEALTH HEAL wid %ld -> %ld", m_appliedWid, wid);
    applyStealthMode(m_stealthOn);
}

} // namespace Orvello
