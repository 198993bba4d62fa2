#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"

#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"

#include <QPointer>

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
        .bundleIdentifier = u"libreoffice-impress"_s, // Of its desktop file.
        .notesName = u"notes"_s,
        .permissionAdvice
        = u"permission denied — LibreOffice answers other programs only once you allow it"_s,
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
    m_isAdviceDue = false; // The user has found the way.
    m_isChanging = true;
    m_helper.ask(question,
        [self = QPointer(this), completion = std::move(completion)](const ScriptResult& result) {
            if (!self)
                return;
            self->m_isChanging = false;
            const bool isDone = result.status == 0;
            completion(
                { isDone, (isDone ? result.standardOutput : result.standardError).trimmed() });
        });
}

} // namespace Orvello
