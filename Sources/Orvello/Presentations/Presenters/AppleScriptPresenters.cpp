#include "Orvello/Presentations/Presenters/AppleScriptPresenters.h"

#include <QCoreApplication>

#include <utility>

namespace Orvello::AppleScriptPresenters {

using namespace Qt::StringLiterals;

namespace {

// The scripts print what AppleScriptRunner's callers parse: a slide number, or a deck record. They
// are passed on byte for byte.

constexpr QStringView keynoteCurrentSlide
    = uR"script(tell application "Keynote" to slide number of current slide of front document)script";

constexpr QStringView keynoteOpenDeck = uR"script(tell application "Keynote"
    if (count of documents) is 0 then error "NO_DOCUMENT"
    set doc to front document
    set out to name of doc
    repeat with s in every slide of doc
        set t to ""
        try
            set t to object text of default title item of s
        end try
        set n to ""
        try
            set n to presenter notes of s
        end try
        set out to out & (character id 30) & t & (character id 31) & n
    end repeat
    return out
end tell)script";

/// One question for all titles: one for each would take a large deck seconds. Where that is not
/// possible, the name alone is told.
constexpr QStringView keynotePresentedDeck = uR"script(tell application "Keynote"
    set doc to front document
    set out to name of doc
    set slideTitles to {}
    try
        set slideTitles to object text of default title item of every slide of doc
    end try
    repeat with t in slideTitles
        set out to out & (character id 30)
        if (contents of t) is not missing value then set out to out & (contents of t)
    end repeat
    return out
end tell)script";

constexpr QStringView powerPointCurrentSlide = uR"script(tell application "Microsoft PowerPoint"
    tell slideshow view of slide show window 1
        try
            slide index of slide
        on error
            current show position
        end try
    end tell
end tell)script";

/// Titles would take a question for each shape.
constexpr QStringView powerPointPresentedDeck = uR"script(tell application "Microsoft PowerPoint"
    set theDoc to presentation of slide show window 1
    set outText to name of theDoc
    repeat (count of slides of theDoc) times
        set outText to outText & (character id 30)
    end repeat
    return outText
end tell)script";

constexpr QStringView powerPointOpenDeck = uR"script(tell application "Microsoft PowerPoint"
    if (count of presentations) is 0 then error "NO_DOCUMENT"
    set theDoc to active presentation
    set outText to name of theDoc
    repeat with i from 1 to (count of slides of theDoc)
        set theSlide to slide i of theDoc
        set titleText to ""
        set noteText to ""
        repeat with j from 1 to (count of shapes of theSlide)
            set theShape to shape j of theSlide
            try
                set phType to placeholder type of placeholder format of theShape
                if (phType is placeholder type title placeholder) or (phType is placeholder type center title placeholder) or (phType is placeholder type vertical title placeholder) then
                    if has text frame of theShape then set titleText to content of text range of text frame of theShape
                end if
            end try
        end repeat
        set thePage to notes page of theSlide
        repeat with j from 1 to (count of shapes of thePage)
            set theShape to shape j of thePage
            try
                set phType to placeholder type of placeholder format of theShape
                if (phType is placeholder type body placeholder) or (phType is placeholder type vertical body placeholder) then
                    if has text frame of theShape then set noteText to noteText & (content of text range of text frame of theShape)
                end if
            end try
        end repeat
        set outText to outText & (character id 30) & titleText & (character id 31) & noteText
    end repeat
    return outText
end tell)script";

PresenterApp::Query running(const AppleScriptRunner& runner, QStringView source)
{
    return [&runner, source](ScriptCompletion completion) {
        runner.run(source.toString(), std::move(completion));
    };
}

QString automationAdvice(const QString& displayName)
{
    //: Follows "Couldn't read the presentation:". %1: a presentation program.
    return QCoreApplication::translate("Orvello::AppleScriptPresenters",
        "permission denied — allow Orvello to control %1 in System Settings → Privacy & Security → "
        "Automation")
        .arg(displayName);
}

} // namespace

PresenterApp keynote(const AppleScriptRunner& runner)
{
    return {
        .displayName = u"Keynote"_s,
        .logName = u"Keynote"_s,
        .bundleIdentifier = u"com.apple.iWork.Keynote"_s,
        .notesName
        = QCoreApplication::translate("Orvello::AppleScriptPresenters", "presenter notes"),
        .permissionAdvice = automationAdvice(u"Keynote"_s),
        .askCurrentSlide = running(runner, keynoteCurrentSlide),
        .askOpenDeck = running(runner, keynoteOpenDeck),
        .askPresentedDeck = running(runner, keynotePresentedDeck),
    };
}

PresenterApp powerPoint(const AppleScriptRunner& runner)
{
    return {
        .displayName = u"Microsoft PowerPoint"_s,
        .logName = u"PowerPoint"_s,
        .bundleIdentifier = u"com.microsoft.Powerpoint"_s,
        .notesName = QCoreApplication::translate("Orvello::AppleScriptPresenters", "speaker notes"),
        .permissionAdvice = automationAdvice(u"Microsoft PowerPoint"_s),
        .askCurrentSlide = running(runner, powerPointCurrentSlide),
        .askOpenDeck = running(runner, powerPointOpenDeck),
        .askPresentedDeck = running(runner, powerPointPresentedDeck),
        .hasDeckFiles = true,
    };
}

} // namespace Orvello::AppleScriptPresenters
