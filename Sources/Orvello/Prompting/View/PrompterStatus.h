#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QStringList>

namespace Orvello {

class ScrollEngine;

/// What the prompter's badges say: what the scroll engine does, and whether recordings show it all.
class PrompterStatus final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString label READ label NOTIFY changed FINAL)
    Q_PROPERTY(QColor color READ color NOTIFY changed FINAL)
    Q_PROPERTY(QStringList labels READ labels CONSTANT FINAL)
    Q_PROPERTY(bool isVisibleInRecordings READ isVisibleInRecordings NOTIFY
            visibleInRecordingsChanged FINAL)

public:
    /// `engine` must outlive it.
    explicit PrompterStatus(const ScrollEngine& engine, QObject* parent = nullptr);

    QString label() const;
    QColor color() const;

    static QStringList labels(); ///< Every possible label: a badge has room for the widest.

    /// Whether Stealth Mode is wanted where nothing can hide the panel.
    bool isVisibleInRecordings() const { return m_isVisibleInRecordings; }
    void setVisibleInRecordings(bool isVisible);

Q_SIGNALS:
    void changed();
    void visibleInRecordingsChanged();

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
    bool m_isVisibleInRecordings = false;
};

} // namespace Orvello
