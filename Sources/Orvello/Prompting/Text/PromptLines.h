#pragma once

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

    double fontSize() const { return m_fontSize; }
    void setFontSize(double points);

    double textWidth() const { return m_textWidth; }
    void setTextWidth(double points); ///< The width at which lines wrap.

    /// The scale of the lines that are shown, which for a moment may still be the one before a
    /// change.
    const PromptTypography& shownTypography() const { return m_shown.typography(); }

    /// The lines at least partly in the visible part, from the top down, with at most one that is
    /// just above it, and the one that is the next to come from below.
    const std::vector<PromptLine>& visibleLines() const { return m_visibleLines; }

    double visibleTop() const { return m_visibleTop; }
    void setVisibleTop(double points); ///< Below the text's top; negative above it.

    double visibleHeight() const { return m_visibleHeight; }
    void setVisibleHeight(double points);

    /// The height of the whole text. It grows while a text is being laid out, and never falls below
    /// the height before the change until the layout is complete.
    double contentHeight() const { return m_contentHeight; }

    bool isLaidOut() const; ///< Whether the layout has reached the end of the present text.

    std::size_t positionBytes() const; ///< The memory that the positions of lines take.

Q_SIGNALS:
    void textChanged();
    void visibleLinesChanged();
    void shownTypographyChanged();
    void contentHeightChanged();

private:
    PromptTypography typography() const;
    PromptLayout& newest();
    bool canLayOut() const;
    void restart();
    void layOut(PromptLayout layout);
    void layOutSlice();
    void adoptWhenReady();
    void updateContentHeight();
    void showVisibleLines();

    TimeSource& m_time;
    QString m_text;
    double m_fontSize = 0;
    double m_textWidth = 0;
    double m_visibleTop = 0;
    double m_visibleHeight = 0;
    double m_contentHeight = 0;
    PromptLayout m_shown;
    std::optional<PromptLayout> m_next; ///< Replaces m_shown when it has reached the visible part.
    /// Half-open; nothing when out of date.
    std::optional<std::pair<PromptLayout::Index, PromptLayout::Index>> m_visibleRange;
    std::vector<PromptLine> m_visibleLines;
    std::unique_ptr<TimeSource::Ticket> m_slice;
};

} // namespace Orvello
