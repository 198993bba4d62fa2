#pragma once

#include <QColor>
#include <QObject>

namespace Orvello {

/// The colours and sizes of what stands on the prompter's card, for C++ and for the views. Colours
/// that mean something are the system colours of the macOS dark appearance, as in the text's colour
/// presets.
class CardStyle : public QObject {
    Q_OBJECT
    Q_PROPERTY(QColor red MEMBER red CONSTANT FINAL)
    Q_PROPERTY(QColor yellow MEMBER yellow CONSTANT FINAL)
    Q_PROPERTY(QColor green MEMBER green CONSTANT FINAL)
    Q_PROPERTY(QColor text MEMBER text CONSTANT FINAL)
    Q_PROPERTY(QColor strongLabel MEMBER strongLabel CONSTANT FINAL)
    Q_PROPERTY(QColor notice MEMBER notice CONSTANT FINAL)
    Q_PROPERTY(QColor label MEMBER label CONSTANT FINAL)
    Q_PROPERTY(QColor symbol MEMBER symbol CONSTANT FINAL)
    Q_PROPERTY(QColor disabledSymbol MEMBER disabledSymbol CONSTANT FINAL)
    Q_PROPERTY(QColor unlit MEMBER unlit CONSTANT FINAL)
    Q_PROPERTY(QColor capsule MEMBER capsule CONSTANT FINAL)
    Q_PROPERTY(QColor veil MEMBER veil CONSTANT FINAL)
    Q_PROPERTY(QColor hairLine MEMBER hairLine CONSTANT FINAL)
    Q_PROPERTY(double cornerRadius MEMBER cornerRadius CONSTANT FINAL)
    Q_PROPERTY(double edge MEMBER edge CONSTANT FINAL)
    Q_PROPERTY(double capsuleHeight MEMBER capsuleHeight CONSTANT FINAL)
    Q_PROPERTY(int labelSize MEMBER labelSize CONSTANT FINAL)
    Q_PROPERTY(int countdownSize MEMBER countdownSize CONSTANT FINAL)

public:
    static constexpr QColor red { 255, 69, 58 };
    static constexpr QColor orange { 255, 159, 10 };
    static constexpr QColor yellow { 255, 214, 10 };
    static constexpr QColor green { 48, 209, 88 };

    static constexpr QColor text { 255, 255, 255 };
    static constexpr QColor strongLabel { 255, 255, 255, 217 }; // 85 %
    static constexpr QColor notice { 255, 255, 255, 179 }; // 70 %
    static constexpr QColor label { 255, 255, 255, 140 }; // 55 %
    static constexpr QColor symbol { 255, 255, 255, 204 }; // 80 %
    static constexpr QColor disabledSymbol { 255, 255, 255, 64 }; // 25 %
    static constexpr QColor unlit { 255, 255, 255, 38 }; // 15 %
    static constexpr QColor capsule { 0, 0, 0, 224 }; ///< Readable above moving text.
    static constexpr QColor veil { 0, 0, 0, 153 }; ///< Over the text during a countdown.

    /// Parts the card from a black window below.
    static constexpr QColor hairLine { 255, 255, 255, 46 }; // 18 %

    static constexpr double cornerRadius = 16;
    static constexpr double edge = 6; ///< Between the card's edge and what stands beside it.
    static constexpr double capsuleHeight = 18;
    static constexpr int labelSize = 10;
    static constexpr int countdownSize = 84;
};

} // namespace Orvello
