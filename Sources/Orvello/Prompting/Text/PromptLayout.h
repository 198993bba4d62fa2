#pragma once

#include "Orvello/Foundation/TextEdit.h"
#include "Orvello/Prompting/Text/PromptPiece.h"

#include <QString>

#include <utility>
#include <vector>

namespace Orvello {

/// Breaks a text of any length into lines, a bounded step at a time, and remembers of each line
/// only where it starts and stands. The pieces that it laid out are laid out again to be drawn.
class PromptLayout {
public:
    using Index = std::vector<int>::difference_type;

    PromptLayout() = default; ///< The complete layout of an empty text.
    PromptLayout(const QString& text, const PromptTypography& typography);

    /// The layout of `text`, which differs from this one's text by the edit. Lines that it does not
    /// touch are reused: those before it at once, those after it when the layout gets there.
    [[nodiscard]] PromptLayout edited(const QString& text, const TextEdit& edit) const;

    /// Lays out some more. Takes a few milliseconds at most; does nothing when complete.
    void step();

    bool isComplete() const { return m_isComplete; }

    const PromptTypography& typography() const { return m_typography; }

    /// The height of the lines laid out so far, spacing between them included. 0 for an empty text.
    double height() const;

    /// From one line's top to the next one's, at least.
    double smallestPitch() const;

    Index lineCount() const { return std::ssize(m_lines); }

    /// Where the line begins in the text.
    qsizetype lineStart(Index line) const;

    /// The character at a height below the text's top, and the height at which a character stands:
    /// to fractions of a line's characters, so that one undoes the other. Where the layout has not
    /// reached the character, the height is that of its end.
    double characterAt(double top) const;
    double topOfLineWith(qsizetype character) const; ///< To whole lines.
    double topOf(double character) const;

    /// The half-open range of lines, ready to be drawn. Pieces of `known`, which must be lines of
    /// this layout, are used again.
    std::vector<PromptLine> lines(
        Index first, Index end, const std::vector<PromptLine>& known = {}) const;

    /// The half-open range of lines that are at least partly between the two heights.
    std::pair<Index, Index> linesBetween(double top, double bottom) const;

private:
    struct Line {
        double top = 0;
        quint32 start : 30 = 0;
        quint32 beginsPiece : 1 = 0;
        quint32 isRightToLeft : 1 = 0; ///< The direction of its paragraph.
        float ascent = 0;
    };

    /// Where layout resumes. The direction matters only inside a paragraph.
    struct Position {
        qsizetype start = 0;
        bool isRightToLeft = false;
    };

    /// Lines after a change of text, waiting for the layout to reach the paragraph they begin with.
    struct Tail {
        std::vector<Line> lines;
        Position end;
        double nextTop = 0;
        bool isComplete = false;
    };

    void keepLinesBefore(const PromptLayout& previous, qsizetype change);
    void keepTail(const PromptLayout& previous, qsizetype firstUnchanged);
    bool reuseTail();
    void append(const PromptPiece& piece, int lineCount);
    void endParagraph(qsizetype end);
    Line end() const;
    const Line& at(Index line) const { return m_lines[static_cast<std::size_t>(line)]; }

public:
    /// A million words have some 150,000 lines.
    static constexpr std::size_t bytesPerLine = sizeof(Line);
    static_assert(bytesPerLine == 16);

private:
    QString m_text;
    PromptTypography m_typography;
    double m_fontAscent = 0;
    double m_fontDescent = 0;
    std::vector<Line> m_lines;
    Position m_position;
    double m_nextTop = 0;
    bool m_isComplete = true;
    Tail m_tail;
};

} // namespace Orvello
