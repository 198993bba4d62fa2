#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"

#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"

#include <QPointer>

#include <array>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// The error number that stands for a refusal, as with the other presenters.
constexpr QStringView notAuthorised = u"-1743";

bool isRefused(const ScriptResult& result)
{
    return result.status != 0 && result.status != ScriptResult::notStarted
        && result.standardError.contains(notAuthorised);
}

/// What the helper says, in English, about a change, with a placeholder where it varies.
constexpr std::array answers {
    QT_TRANSLATE_NOOP("Orvello::ImpressPresenter",
        "To follow Impress, Orvello needs the package python3-uno. Install it and try again."),
    QT_TRANSLATE_NOOP("Orvello::ImpressPresenter", "LibreOffice isn't installed."),
    QT_TRANSLATE_NOOP(
        "Orvello::ImpressPresenter", "LibreOffice did not answer. Close it and try again."),
    //: %1: how the other program is connected.
    QT_TRANSLATE_NOOP(
        "Orvello::ImpressPresenter", "LibreOffice already listens to another program (%1)."),
    //: Two paragraphs. %1: a command for a terminal.
    QT_TRANSLATE_NOOP("Orvello::ImpressPresenter",
        "Orvello may now follow Impress. Start the slideshow or the import again.\n\nTo take this "
        "back later: %1"),
    QT_TRANSLATE_NOOP("Orvello::ImpressPresenter", "Orvello may no longer follow Impress."),
};

/// An answer that is not among them, such as one from the system, stays as it is.
QString inUsersLanguage(const QString& answer)
{
    for (const char* const source : answers) {
        const QString text = QString::fromUtf8(source);
        const qsizetype hole = text.indexOf(u"%1"_s);
        if (hole < 0) {
            if (answer == text)
                return ImpressPresenter::tr(source);
            continue;
        }
        const QString before = text.first(hole);
        const QString after = text.sliced(hole + 2);
        if (answer.startsWith(before) && answer.endsWith(after))
            return ImpressPresenter::tr(source).arg(
                answer.sliced(before.size()).chopped(after.size()));
    }
    return answer;
}

} // namespace

ImpressPresenter::ImpressPresenter(
    HelperProcess& helper, const PresentationMonitor& presentation, QObject* parent)
    : QObject(parent)
    , m_helper(helper)
    , m_presentation(presentation)
{
    connect(&presentation, &PresentationMonitor::isPresentingChanged, this,
        &ImpressPresenter::adviseAfterSlideshow);
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
        = tr("permission denied — LibreOffice answers other programs only once you allow it"),
        .askCurrentSlide =
            [this](ScriptCompletion completion) {
                ask(u"slide"_s, std::move(completion), &ImpressPresenter::slideRefused);
            },
        .askOpenDeck =
            [this](ScriptCompletion completion) {
                ask(u"deck"_s, std::move(completion), &ImpressPresenter::importRefused);
            },
    };
}

void ImpressPresenter::ask(
    const QString& question, ScriptCompletion completion, void (ImpressPresenter::*refused)())
{
    const auto receive = [self = QPointer(this), refused, completion = std::move(completion)](
                             const ScriptResult& result) {
        completion(result);
        if (self && isRefused(result))
            (self->*refused)();
    };
    m_helper.ask(question, receive);
}

void ImpressPresenter::slideRefused()
{
    m_isAdviceDue = !m_hasAdvised;
    adviseAfterSlideshow();
}

void ImpressPresenter::adviseAfterSlideshow()
{
    if (!m_isAdviceDue || m_presentation.isPresenting())
        return;
    m_isAdviceDue = false;
    m_hasAdvised = true;
    Q_EMIT adviceNeeded();
}

void ImpressPresenter::importRefused()
{
    m_isAdviceDue = false;
    m_hasAdvised = true;
    Q_EMIT adviceNeeded();
}

void ImpressPresenter::allow(Completion completion) { change(u"allow"_s, std::move(completion)); }

void ImpressPresenter::disallow(Completion completion)
{
    change(u"disallow"_s, std::move(completion));
}

void ImpressPresenter::change(const QString& question, Completion completion)
{
    m_isAdviceDue = false; // The user knows how to allow it by now.
    m_isChanging = true;
    m_helper.ask(question,
        [self = QPointer(this), completion = std::move(completion)](const ScriptResult& result) {
            if (!self)
                return;
            self->m_isChanging = false;
            const bool isDone = result.status == 0;
            completion({ isDone,
                inUsersLanguage(
                    (isDone ? result.standardOutput : result.standardError).trimmed()) });
        });
}

} // namespace Orvello
