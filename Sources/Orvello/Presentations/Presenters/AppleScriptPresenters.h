#pragma once

#include "Orvello/Presentations/Presenters/PresenterApp.h"

/// The presentation applications that are asked through AppleScript.
namespace Orvello::AppleScriptPresenters {

/// `runner` must outlive the row.
[[nodiscard]] PresenterApp keynote(const AppleScriptRunner& runner);
[[nodiscard]] PresenterApp powerPoint(const AppleScriptRunner& runner);

} // namespace Orvello::AppleScriptPresenters
