#include "Orvello/Library/Import/DeckImportError.h"

#include "Orvello/Presentations/Presenters/PresenterApp.h"

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// The error that the scripts themselves raise.
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
        //: %1: a presentation program, such as Keynote.
        return tr("%1 isn't running. Open your presentation in %1 first.").arg(name);
    case Reason::NoDocument:
        //: %1: a presentation program, such as Keynote.
        return tr("No presentation is open in %1.").arg(name);
    case Reason::NoNotes:
        //: %1: a presentation program; %2: what it calls the notes, such as "speaker notes".
        return tr("That %1 presentation has no %2 on any slide.").arg(name, app->notesName);
    case Reason::ScriptFailed:
        break;
    }
    //: %1: a presentation program; %2: why, a sentence or a part of one.
    return tr("Couldn't read the %1 presentation: %2").arg(name, message);
}

} // namespace Orvello
