#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Foundation/DefaultsValue.h"
#include "Orvello/Platform/Early/UserDefaults.h"
#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"

#include <QPointer>

#include <array>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

const QString allowedKey = u"impressAllowed"_s;

/// The error number that stands for a refusal, as with the other presenters.
constexpr QStringView notAuthorised = u"-1743";

/// A slide that comes later than this is no longer the one on screen.
constexpr double slideSeconds = 2.0;
/// No slide is followed meanwhile; the first of a large deck's answers takes a second.
constexpr double presentedSeconds = 5.0;
constexpr double deckSeconds = 20.0;
constexpr double openSeconds = 20.0;

bool isRefused(const ScriptResult& result)
{
    return result.status > 0 && result.standardError.contains(notAuthorised);
}

/// What the helper says, in English, with a placeholder where it varies.
constexpr std::array answers {
    QT_TRANSLATE_NOOP("Orvello::ImpressPresenter",
        "To follow Impress, Orvello needs the package python3-uno. Install it and try again."),
    QT_TRANSLATE_NOOP("Orvello::ImpressPresenter", "LibreOffice isn't running."),
    QT_TRANSLATE_NOOP("Orvello::ImpressPresenter", "LibreOffice did not answer."),
    //: %1: a kind of package, such as Flatpak or Snap.
    QT_TRANSLATE_NOOP("Orvello::ImpressPresenter",
        "This LibreOffice runs in a sandbox (%1) that Orvello cannot reach. Import the "
        "presentation's file instead, and step through the slides by hand."),
};

/// An answer that is not among them, such as one from the system, stays as it is, and so does an
/// error number.
QString inUsersLanguage(const QString& answer)
{
    for (const char* const source : answers) {
        const QString text = QString::fromUtf8(source);
        const qsizetype hole = text.indexOf(u"%1"_s);
        if (hole < 0) {
            if (answer.startsWith(text))
                return ImpressPresenter::tr(source) + answer.sliced(text.size());
            continue;
        }
        const QString after = text.sliced(hole + 2);
        const qsizetype end = answer.indexOf(after);
        if (answer.startsWith(QStringView(text).first(hole)) && end >= hole)
            return ImpressPresenter::tr(source).arg(answer.sliced(hole, end - hole))
                + answer.sliced(end + after.size());
    }
    return answer;
}

/// Without the error number in brackets at its end.
QString withoutNumber(const QString& error)
{
    const qsizetype bracket = error.lastIndexOf(u" (-"_s);
    return bracket < 0 ? error : error.first(bracket);
}

} // namespace

ImpressPresenter::ImpressPresenter(HelperProcess& helper, const PresentationMonitor& presentation,
    UserDefaults& defaults, QObject* parent)
    : QObject(parent)
    , m_helper(helper)
    , m_presentation(presentation)
    , m_defaults(defaults)
    , m_isAllowed(DefaultsValue::asBoolean(defaults.value(allowedKey)).value_or(false))
{
    connect(&presentation, &PresentationMonitor::isSlideshowOnScreenChanged, this, [this] {
        Q_EMIT audienceChanged();
        closeWhenIdle();
        advise();
    });
}

PresenterApp ImpressPresenter::row()
{
    return {
        .displayName = u"LibreOffice Impress"_s,
        .logName = u"Impress"_s,
        .bundleIdentifier = u"libreoffice-impress"_s, // The name of its desktop file.
        //: What Impress calls a speaker's notes.
        .notesName = tr("notes"),
        .permissionAdvice
        //: Follows "Couldn't read the Impress presentation:".
        = tr("permission denied — Orvello asks LibreOffice only once you allow it"),
        .askCurrentSlide
        = [this](ScriptCompletion completion) { ask(Purpose::Slide, std::move(completion)); },
        .askOpenDeck
        = [this](ScriptCompletion completion) { ask(Purpose::Deck, std::move(completion)); },
        .askPresentedDeck
        = [this](ScriptCompletion completion) { ask(Purpose::Presented, std::move(completion)); },
    };
}

void ImpressPresenter::setAllowed(bool isAllowed)
{
    if (!assign(m_isAllowed, isAllowed))
        return;
    m_defaults.setValue(allowedKey, isAllowed);
    m_isAdviceDue = false; // The user knows how to allow it by now.
    if (!isAllowed) {
        m_isOpen = false;
        m_helper.end();
    }
    setObstacle({});
    Q_EMIT isAllowedChanged();
}

bool ImpressPresenter::hasAudience() const { return m_presentation.isSlideshowOnScreen(); }

void ImpressPresenter::ask(Purpose purpose, ScriptCompletion completion)
{
    ++m_questions;
    const auto receive = [self = QPointer(this), purpose, completion = std::move(completion)](
                             const ScriptResult& result) {
        if (self)
            self->conclude(purpose, result, completion);
        else
            completion(result);
    };
    if (!m_isAllowed)
        QMetaObject::invokeMethod(
            this,
            [receive] {
                receive({ 1, {}, u"Orvello may not ask LibreOffice. (%1)"_s.arg(notAuthorised) });
            },
            Qt::QueuedConnection);
    else if (m_isOpen)
        askOpened(purpose, receive);
    else
        open(purpose, receive);
}

/// Has LibreOffice listen first, which takes longer than a slide may.
void ImpressPresenter::open(Purpose purpose, ScriptCompletion completion)
{
    m_helper.ask(u"open"_s, openSeconds,
        [self = QPointer(this), purpose, completion = std::move(completion)](
            const ScriptResult& result) {
            if (!self || result.status != 0) {
                completion(result);
                return;
            }
            self->m_isOpen = true;
            self->askOpened(purpose, completion);
        });
}

void ImpressPresenter::askOpened(Purpose purpose, ScriptCompletion completion)
{
    if (purpose == Purpose::Slide)
        m_helper.ask(u"slide"_s, slideSeconds, std::move(completion));
    else if (purpose == Purpose::Presented)
        m_helper.ask(u"presented"_s, presentedSeconds, std::move(completion));
    else
        m_helper.ask(u"deck"_s, deckSeconds, std::move(completion));
}

void ImpressPresenter::conclude(
    Purpose purpose, const ScriptResult& result, const ScriptCompletion& completion)
{
    --m_questions;
    // Any failure may mean that LibreOffice has gone or another one come, and opening again is
    // cheap.
    if (result.status != 0)
        m_isOpen = false;
    const bool isRefusal = isRefused(result);
    if (m_isAllowed)
        setObstacle(
            isRefusal ? withoutNumber(inUsersLanguage(result.standardError.trimmed())) : QString());

    ScriptResult told = result;
    told.standardError = result.status == ScriptResult::timedOut
        ? tr("LibreOffice did not answer.")
        : inUsersLanguage(result.standardError);
    const QPointer<ImpressPresenter> self(this);
    completion(told);
    if (!self)
        return;
    if (isRefusal)
        refused(purpose);
    closeWhenIdle();
}

void ImpressPresenter::setObstacle(const QString& obstacle)
{
    if (assign(m_obstacle, obstacle))
        Q_EMIT obstacleChanged();
}

void ImpressPresenter::refused(Purpose purpose)
{
    if (purpose == Purpose::Deck || !m_hasAdvised)
        m_isAdviceDue = true;
    advise();
}

void ImpressPresenter::advise()
{
    if (!m_isAdviceDue || hasAudience())
        return;
    m_isAdviceDue = false;
    m_hasAdvised = true;
    Q_EMIT adviceNeeded();
}

void ImpressPresenter::closeWhenIdle()
{
    if (m_questions > 0 || hasAudience())
        return;
    m_isOpen = false;
    m_helper.end();
}

} // namespace Orvello
