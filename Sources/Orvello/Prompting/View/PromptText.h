#pragma once

#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Prompting/Engine/SmoothScroll.h"
#include "Orvello/Prompting/Text/LineImage.h"
#include "Orvello/Prompting/Text/PromptLines.h"

#include <QColor>
#include <QQuickItem>
#include <QTimer>

#include <optional>
#include <vector>

namespace Orvello {

/// The prompter's text on its card: the visible lines where the scroll engine has moved them,
/// dissolving toward the top and the bottom edge. While the text moves, it asks for a frame for
/// each that the display shows, and otherwise for none.
class PromptText : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(Orvello::ScrollEngine* engine READ engine WRITE setEngine NOTIFY engineChanged
            REQUIRED FINAL)
    Q_PROPERTY(
        Orvello::PromptLines* lines READ lines WRITE setLines NOTIFY linesChanged REQUIRED FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    Q_PROPERTY(
        double cardOpacity READ cardOpacity WRITE setCardOpacity NOTIFY cardOpacityChanged FINAL)

public:
    explicit PromptText(QQuickItem* parent = nullptr);
    ~PromptText() override;

    ScrollEngine* engine() const { return m_engine; }
    void setEngine(ScrollEngine* engine); ///< Once. It must outlive the item.

    PromptLines* lines() const { return m_lines; }
    void setLines(PromptLines* lines); ///< Once. They must outlive the item.

    QColor color() const { return m_color; }
    void setColor(const QColor& color);

    /// How opaque the card under the text is, from 0 (clear) to 1.
    double cardOpacity() const { return m_cardOpacity; }
    void setCardOpacity(double opacity);

Q_SIGNALS:
    void engineChanged();
    void linesChanged();
    void colorChanged();
    void cardOpacityChanged();

protected:
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* root, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    /// A visible line and its picture, once that is drawn.
    struct ShownLine {
        PromptLine line;
        std::optional<LineImage> image;
        quint64 imageId = 0;
    };

    void tellSize();
    void outlineLetters();
    void follow();
    void requestFrame();
    void frameWasShown();
    void redrawAllLines();
    void takeOverLines();
    void draw(ShownLine& shown);
    bool isInSight(const ShownLine& shown) const;
    QRectF placeOf(const ShownLine& shown) const;
    double frameInterval() const;

    ScrollEngine* m_engine = nullptr;
    PromptLines* m_lines = nullptr;
    QColor m_color = Qt::white;
    double m_cardOpacity = 1;
    QColor m_outline = Qt::transparent; ///< Around the letters, where they need one to be read.
    std::optional<SmoothScroll> m_scroll;
    std::vector<ShownLine> m_shown;
    quint64 m_lastImageId = 0;
    bool m_areLinesNew = false; ///< Whether the lines changed since they were drawn.
    bool m_isPreparingFrame = false;
    bool m_isFollowing = false; ///< A frame is on its way after which the next one is asked for.
    double m_nextFrame = 0; ///< The earliest moment for that frame, on the engine's clock.
    QTimer m_pacing;
};

} // namespace Orvello
