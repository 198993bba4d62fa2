#include "Orvello/Presentations/ImpressPresenter.h"

#include <QPointer>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace ImpressPresenter {

namespace {

const QString identifier = u"libreoffice-impress"_s; ///< Of its desktop file.

QString advice()
{
    return u"LibreOffice does not let Orvello in yet. Choose “%1” in Orvello's menu, then "
           "start the slideshow or the import again"_s.arg(allowTitle());
}

PresenterApp::Query asking(HelperProcess& helper, const QString& question)
{
    return [&helper, question](
               ScriptCompletion completion) { helper.ask(question, std::move(completion)); };
}

} // namespace

PresenterApp row(HelperProcess& helper)
{
    return {
        .displayName = u"LibreOffice Impress"_s,
        .logName = u"Impress"_s,
        .bundleIdentifier = identifier,
        .notesName = u"notes"_s,
        .permissionAdvice = advice(),
        .askCurrentSlide = asking(helper, u"slide"_s),
        .askOpenDeck = asking(helper, u"deck"_s),
    };
}

QString allowTitle() { return u"Let Orvello Follow Impress"_s; }

QString disallowTitle() { return u"Stop Following Impress"_s; }

} // namespace ImpressPresenter

ImpressAccess::ImpressAccess(const SlideSyncService& sync, HelperProcess& helper, QObject* parent)
    : QObject(parent)
    , m_sync(sync)
    , m_helper(helper)
{
    connect(&sync, &SlideSyncService::stateChanged, this, &ImpressAccess::adviseOnce);
}

void ImpressAccess::allow(Completion completion) { change(u"allow"_s, std::move(completion)); }

void ImpressAccess::disallow(Completion completion)
{
    change(u"disallow"_s, std::move(completion));
}

void ImpressAccess::adviseOnce()
{
    const PresenterApp* app = m_sync.app();
    if (m_hasAdvised || m_sync.state() != SlideSyncService::State::Denied || !app
        || app->bundleIdentifier != ImpressPresenter::identifier)
        return;
    m_hasAdvised = true;
    Q_EMIT adviceNeeded(app->permissionAdvice);
}

void ImpressAccess::change(const QString& question, Completion completion)
{
    m_helper.ask(question,
        [self = QPointer(this), completion = std::move(completion)](const ScriptResult& result) {
            if (self)
                completion(
                    (result.status == 0 ? result.standardOutput : result.standardError).trimmed());
        });
}

} // namespace Orvello
