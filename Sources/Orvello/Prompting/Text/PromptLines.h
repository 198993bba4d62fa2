#pragma once

#include "Orvello/Foundation/TextDifferences.h"
#include "Orvello/Platform/Early/TimeSource.h"
#include "Orvello/Prompting/Text/PromptLayout.h"

#include <QObject>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace Orvello {

/// The prompter's text as a view shows it: the lines that are visible, and no others. However long
/// the text, laying it out never keeps the main loop for long, and what was visible stays until its
/// successor is ready. Lengths are in points. Main thread.
class PromptLines final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString text READ text NOTIFY textChanged FINAL)

public:
    /// `time` must outlive the lines.
    explicit PromptLines(TimeSource& time, QObject* parent = nullptr);
    ~PromptLines() override;

    const QString& text() const { return m_text; }
    void setText(const QString& text);

    /// Takes over a text that differs from the present one by the edit alone: at the cost of the
    /// edit, not of the text.
    void edit(const QString& text, const TextEdit& edit);

    /// Takes over a text that is the present one with these differences. The reader stays at the
    /// same words, wherever they have gone.
    void update(const QString& text, const TextDifferences& differences);

    /// Sizes at which nobody could read are shown as the nearest at which one can.
    void setFontSize(double points);

    double textWidth() const { return m_textWidth; }
    void setTextWidth(double points); ///< The width at which lines wrap.

    /// The scale of the lines that are shown, which for a moment may still be the one before a
    /// change.
    const PromptTypography& shownTypography() const { return m_shown.typography(); }

    /// The lines at least partly in the visible part, from the top down, with at most one that is
    /// just above it, and the one that is the next to come from below.
    const std::vector<PromptLine>& visibleLines() const { return m_visibleLines; }

    /// What the reader is reading now, below the text's top. When the text is set anew, in another
    /// size or width, this moves to where the same words have gone.
    double readingTop() const { return m_readingTop; }
    void setReadingTop(double points);

    double visibleTop() const { return m_visibleTop; }
    void setVisibleTop(double points); ///< Below the text's top; negative above it.

    double visibleHeight() const { return m_visibleHeight; }
    void setVisibleHeight(double points);

    /// The height of the whole text. It grows while a text is being laid out, and never falls below
    /// the height before the change until the layout is complete.
    double contentHeight() const { return m_contentHeight; }

    /// Announces where the line with that character of the text stands: at once or, in a long text,
    /// when it is laid out as far as the lines that are seen below it. Another text ends the
    /// search.
    void find(qsizetype character);

    bool isLaidOut() const; ///< Whether the layout has reached the end of the present text.

    std::size_t positionBytes() const; ///< The memory that the positions of lines take.

Q_SIGNALS:
    void textChanged();
    void visibleLinesChanged();
    void shownTypographyChanged();
    void contentHeightChanged();
    void found(double top); ///< Below the text's top.
    void readingTopMoved(); ///< Not by who set it. The visible part has moved by as much.

private:
    PromptTypography typography() const;
    PromptLayout& newest();
    bool canLayOut() const;
    bool isNextReady(double readingTop) const;
    enum class Place { Kept, Left };

    void restart(Place place);
    void layOut(PromptLayout layout);
    void layOutSlice();
    void adoptWhenReady();
    void tellFound();
    void updateContentHeight();
    void showVisibleLines();

    TimeSource& m_time;
    QString m_text;
    std::optional<double> m_fontSize;
    double m_textWidth = 0;
    double m_readingTop = 0;
    double m_visibleTop = 0;
    double m_visibleHeight = 0;
    double m_contentHeight = 0;
    PromptLayout m_shown;
    std::optional<PromptLayout> m_next; ///< Replaces m_shown when it has reached the visible part.
    /// What has happened to the text that is shown, for the place in the one that is being laid
    /// out.
    std::vector<TextDifferences> m_moves;
    Place m_place = Place::Left; ///< Of the reader, in the text that is being laid out.
    /// Half-open; nothing when out of date.
    std::optional<std::pair<PromptLayout::Index, PromptLayout::Index>> m_visibleRange;
    std::vector<PromptLine> m_visibleLines;
    std::optional<qsizetype> m_sought; ///< A character whose line is to be announced.
    std::unique_ptr<TimeSource::Ticket> m_slice;
};

} // namespace Orvello
