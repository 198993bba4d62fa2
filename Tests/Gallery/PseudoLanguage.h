#pragma once

#include "Tests/Gallery/Scene.h"

#include <QTranslator>

namespace Orvello::Gallery {

/// Gives the application the language that tools/pseudo-language makes, for as long as it exists:
/// each text stands between marks and is two fifths longer.
class PseudoLanguage {
public:
    PseudoLanguage();
    ~PseudoLanguage();
    PseudoLanguage(const PseudoLanguage&) = delete;
    PseudoLanguage& operator=(const PseudoLanguage&) = delete;

private:
    QTranslator m_words;
};

/// The same scene in that language.
Scene inPseudoLanguage(const Scene& scene);

/// The same scene as those see it who read from right to left.
Scene mirrored(const Scene& scene);

} // namespace Orvello::Gallery
