#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QStringList>

namespace Orvello {

class ScrollEngine;

/// What the prompter's status badge says about the scroll engine.
class PrompterStatus final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString label READ label NOTIFY changed FINAL)
    Q_PROPERTY(QColor color READ color NOTIFY changed FINAL)
    Q_PROPERTY(QStringList labels READ labels CONSTANT FINAL)

public:
    explicit PrompterStatus(
        const ScrollEngine& engine, QObject* parent = nullptr); ///< `engine` must outlive it.

    QString label() const;
    QColor color() const;

    static QStringList labels(); ///< Every label there is: a badge has room for each.

Q_SIGNALS:
    void changed();

private:
    enum class State { GetReady, HoverPause, Paused, Listening, Scrolling };

    struct Appearance {
        QString label;
        QColor color;
    };

    static Appearance appearance(State state);
    State stateOfEngine() const;
    void update();

    const ScrollEngine& m_engine;
    State m_state;
};

} // namespace Orvello
