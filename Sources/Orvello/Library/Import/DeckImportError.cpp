#include "Orvello/Library/Import/DeckImportError.h"

#include "Orvello/Presentations/Presenters/PresenterApp.h"

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// Raised by the scripts themselves.
constexpr QStringView noDocument = u"NO_DOCUMENT";

/// The system's error number for an Apple event that the user has not authorised.
constexpr QStringView notAuthorised = u"-1743";

} // namespace

DeckImportError DeckImportError::of(const PresenterApp& app, const ScriptResult& result)
{
    if (result.standardError.contains(noDocument))
        return { Reason::NoDocument, &app, {} };
    if (result.standardError.contains(notAuthorised))
        return { Reason::ScriptFailed, &app, app.permissionAdvice };
    return { Reason::ScriptFailed, &app, result.standardError.trimmed() };
}

QString DeckImportError::description() const
{
    const QString name = app->logName;
    switch (reason) {
    case Reason::NotRunning:
        return u"%1 isn't running. Open your presentation in %1 first."_s.arg(name);
    case Reason::NoDocument:
        return u"No presentation is open in %1."_s.arg(name);
    case Reason::NoNotes:
        return u"That %1 presentation has no %2 on any slide."_s.arg(name, app->notesName);
    case Reason::ScriptFailed:
        break;
    }
    return u"Couldn't read the %1 presentation: "_s.arg(name) + message;
}

} // namespace Orvello
