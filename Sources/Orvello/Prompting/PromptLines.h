#pragma once

#include "Orvello/Platform/TimeSource.h"
#include "Orvello/Prompting/PromptLayout.h"

#include <QAbstractListModel>

#include <memory>
#include <optional>
#include <vector>

namespace Orvello {

/// The prompter's text as a view shows it: a small list of slots, one for each line that can be
/// visible at a time. A line keeps its slot while it is visible, so scrolling by a line changes one
/// slot. However long the text, laying it out never keeps the main loop for long, and what was
/// visible stays until its successor is ready. Lengths are in points. Main thread.
class PromptLines final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    Q_PROPERTY(
        QString fontFamily READ fontFamily WRITE setFontFamily NOTIFY typographyChanged FINAL)
    Q_PROPERTY(double fontSize READ fontSize WRITE setFontSize NOTIFY typographyChanged FINAL)
    Q_PROPERTY(double textWidth READ textWidth WRITE setTextWidth NOTIFY typographyChanged FINAL)
    Q_PROPERTY(QFont lineFont READ lineFont NOTIFY lineTypographyChanged FINAL)
    Q_PROPERTY(double lineWidth READ lineWidth NOTIFY lineTypographyChanged FINAL)
    Q_PROPERTY(
        double visibleTop READ visibleTop WRITE setVisibleTop NOTIFY visiblePartChanged FINAL)
    Q_PROPERTY(double visibleHeight READ visibleHeight WRITE setVisibleHeight NOTIFY
            visiblePartChanged FINAL)
    Q_PROPERTY(double originY READ originY NOTIFY originYChanged FINAL)
    Q_PROPERTY(double contentHeight READ contentHeight NOTIFY contentHeightChanged FINAL)

public:
    enum Role { LineTextRole = Qt::UserRole, BaselineRole, IsRightToLeftRole };

    explicit PromptLines(
        TimeSource& time, QObject* parent = nullptr); ///< `time` must outlive the lines.
    ~PromptLines() override;

    const QString& text() const { return m_text; }
    void setText(const QString& text);

    const QString& fontFamily() const { return m_fontFamily; }
    void setFontFamily(const QString& family);

    double fontSize() const { return m_fontSize; }
    void setFontSize(double points);

    double textWidth() const { return m_textWidth; }
    void setTextWidth(double points); ///< Of the frame in which lines wrap.

    /// The font and the frame of the lines that are shown, which for a moment may still be the ones
    /// before a change.
    QFont lineFont() const { return m_shown.typography().font; }
    double lineWidth() const { return m_shown.typography().width; }

    double visibleTop() const { return m_visibleTop; }
    void setVisibleTop(double points); ///< Below the text's top; negative above it.

    double visibleHeight() const { return m_visibleHeight; }
    void setVisibleHeight(double points);

    /// Where the origin of the baselines stands, below the top of the visible part. Both stay small
    /// at any depth of text, so that a renderer's single precision places lines exactly.
    double originY() const { return m_origin - m_visibleTop; }

    /// Of the whole text. While a text is being laid out it grows, and it never falls below the
    /// height before the change until the layout is complete.
    double contentHeight() const { return m_contentHeight; }

    bool isLaidOut() const; ///< Whether the layout has reached the end of the present text.

    std::size_t positionBytes() const; ///< That the positions of lines take.

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void textChanged();
    void typographyChanged();
    void lineTypographyChanged();
    void visiblePartChanged();
    void originYChanged();
    void contentHeightChanged();

private:
    struct Slot {
        std::optional<PromptLayout::Index> line; ///< Nothing when the content is out of date.
        PromptLine content;
    };

    PromptTypography typography() const;
    PromptLayout& newest();
    void typographyWasSet();
    void restart();
    void layOutSlice();
    void adoptWhenReady();
    void updateContentHeight();
    void keepOriginNear();
    void showVisibleLines();
    void setSlotCount(std::size_t count);
    void fill(std::size_t slot, PromptLayout::Index line);

    TimeSource& m_time;
    QString m_text;
    QString m_fontFamily;
    double m_fontSize = 0;
    double m_textWidth = 0;
    double m_visibleTop = 0;
    double m_visibleHeight = 0;
    double m_origin = 0;
    double m_contentHeight = 0;
    PromptLayout m_shown;
    std::optional<PromptLayout> m_next; ///< Replaces m_shown when it has reached the visible part.
    std::vector<Slot> m_slots;
    std::unique_ptr<TimeSource::Ticket> m_slice;
};

} // namespace Orvello
