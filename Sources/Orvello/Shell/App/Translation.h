#pragma once

class QCoreApplication;

namespace Orvello {

/// Gives the application the words of this edition and of the user's language, as far as they
/// differ from those in the source. For an object that exists, before the first window.
void installTranslation(QCoreApplication& application);

} // namespace Orvello
