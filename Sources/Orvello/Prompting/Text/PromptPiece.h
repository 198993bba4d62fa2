#pragma once

#include <QFont>
#include <QString>
#include <QTextLayout>

#include <memory>
#include <vector>

namespace Orvello {

/// How the prompter's text is set. Fonts have whole sizes; a size in between is the next larger one
/// scaled down. Lengths are in points, before they are scaled.
struct PromptTypography {
    QFont font;
    QFont emojiFont; ///< For what asks for colour.
    double width = 0; ///< The width at which lines wrap.
    double lineSpacing = 0; ///< Added between two lines.
    double scale = 1;

    friend bool operator==(const PromptTypography&, const PromptTypography&) = default;
};

/// What ends a paragraph: a line feed, a carriage return and their kin.
[[nodiscard]] bool isParagraphEnd(QChar character);

/// A paragraph of the prompter's text, or the next part of a long one, laid out in lines that can
/// be drawn. It depends on nothing but the part's own text and the paragraph's last words before
/// it, so that laying it out again gives the same piece.
class PromptPiece {
public:
    /// The most characters that a piece has.
    static constexpr qsizetype longest = 1000;

    /// The piece of `text` that begins at `start`. `isRightToLeft` is the paragraph's direction,
    /// which counts where `start` is inside a paragraph.
    PromptPiece(const QString& text, qsizetype start, bool isRightToLeft,
        const PromptTypography& typography);

    qsizetype start() const { return m_start; }
    qsizetype end() const { return m_start + m_length; } ///< Before what ends the paragraph.
    bool endsParagraph() const { return m_endsParagraph; }
    bool isRightToLeft() const { return m_isRightToLeft; }

    /// The lines that can be seen, or that are all of an empty paragraph. Spaces hang over a line's
    /// end; what is too much for that would be lines without a mark. A part of a long paragraph may
    /// be nothing else, and has no line.
    int lineCount() const { return static_cast<int>(m_lines.size()); }

    /// Where the line begins in the text.
    qsizetype lineStart(int index) const;

    /// The line's characters, including those that end it.
    QString lineText(int index) const;

    /// The line in its place from the frame's left edge; its top is at 0.
    QTextLine line(int index) const
    {
        return m_layout.lineAt(m_lines[static_cast<std::size_t>(index)]);
    }

private:
    void findLines();

    qsizetype m_start;
    qsizetype m_length = 0;
    bool m_endsParagraph = false;
    bool m_isRightToLeft;
    qsizetype m_contextLength = 0;
    QTextLayout m_layout;
    std::vector<int> m_lines; ///< Their places in the layout.
};

/// One line, ready to be drawn, before it is scaled.
struct PromptLine {
    std::shared_ptr<const PromptPiece> piece; ///< Shared with the lines around it.
    int index = 0; ///< The line's place in its piece.
    double baseline = 0; ///< Below the text's top, in points.

    QTextLine inPiece() const { return piece->line(index); }

    /// Whether both look the same, wherever they are drawn.
    bool looksLike(const PromptLine& other) const;
};

} // namespace Orvello
