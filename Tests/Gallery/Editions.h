#pragma once

#include <QList>

class QTranslator;

namespace Orvello::Gallery {

/// Whose words a window has, and whether Stealth Mode has an effect there.
enum class Edition { Linux, MacOS };

constexpr bool canExcludeFromCapture(Edition edition) { return edition == Edition::MacOS; }

/// Gives the application an edition's words for as long as it exists. Those of the source are the
/// macOS edition's; the program's translation makes them another's.
class StageWords {
public:
    explicit StageWords(Edition edition);
    ~StageWords();
    StageWords(const StageWords&) = delete;
    StageWords& operator=(const StageWords&) = delete;

private:
    QList<QTranslator*> m_removed;
};

} // namespace Orvello::Gallery
