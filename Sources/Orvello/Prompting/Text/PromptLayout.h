#pragma once

#include <QFont>
#include <QString>

#include <utility>
#include <vector>

namespace Orvello {

/// How the prompter's text is set. Fonts have whole sizes; a size in between is the next larger one
/// scaled down. Lengths are in points, before they are scaled.
struct PromptTypography {
    QFont font;
    double width = 0; ///< Of the frame in which lines wrap.
    double lineSpacing = 0; ///< Added between two lines.
    double scale = 1;

    friend bool operator==(const PromptTypography&, const PromptTypography&) = default;
};

/// One line, ready to be shown on its own, before it is scaled.
struct PromptLine {
    QString text; ///< Without what ends it, with the marks that keep its bidirectional order.
    double baseline = 0; ///< Below the text's top, in points.
    bool isRightToLeft = false; ///< The direction of its paragraph.

    friend bool operator==(const PromptLine&, const PromptLine&) = default;
};

/// Breaks a text of any length into lines, a bounded step at a time, and remembers of each line
/// only where it starts and stands. Nothing is shaped that is not being broken right now.
class PromptLayout {
public:
    using Index = std::vector<int>::difference_type;

    /// The most characters that one step looks at.
    static constexpr qsizetype stepLength = 1000;

    PromptLayout() = default; ///< Of the empty text, complete.

    /// Takes over the lines of `previous` that the change of text leaves as they are: those before
    /// it at once, those after it when the layout gets there.
    PromptLayout(
        const QString& text, const PromptTypography& typography, const PromptLayout& previous);

    /// Lays out some more. Takes a few milliseconds at most; does nothing when complete.
    void step();

    bool isComplete() const { return m_isComplete; }

    const QString& text() const { return m_text; }
    const PromptTypography& typography() const { return m_typography; }

    /// Of the lines laid out so far, spacing between them included. 0 for an empty text.
    double height() const;

    /// From one line's top to the next one's, at least.
    double smallestPitch() const;

    Index lineCount() const { return std::ssize(m_lines); }

    /// Where the line begins in the text.
    qsizetype lineStart(Index line) const;

    PromptLine line(Index line) const;

    /// The half-open range of lines that are at least partly between the two heights.
    std::pair<Index, Index> linesBetween(double top, double bottom) const;

private:
    struct Line {
        double top = 0;
        quint32 start : 31 = 0;
        quint32 isRightToLeft : 1 = 0;
        float ascent = 0;
    };

    /// Where layout goes on. Its direction counts inside a paragraph only.
    struct Position {
        qsizetype start = 0;
        bool isParagraphStart = true;
        bool isRightToLeft = false;
    };

    /// What is laid out in one go, from the position on: the rest of a paragraph or some of it.
    struct Piece {
        qsizetype length = 0;
        bool endsParagraph = false;
        bool isRightToLeft = false;
    };

    struct BrokenLine {
        qsizetype start = 0; ///< In its piece.
        double ascent = 0;
        double descent = 0;
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
    Piece nextPiece() const;
    std::vector<BrokenLine> brokenLines(const Piece& piece) const;
    void append(const std::vector<BrokenLine>& lines);
    void endParagraph(qsizetype length);
    qsizetype lineEnd(Index line) const;

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
