#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace Orvello {

class SettingsStore;

/// What the settings window shows of the preferences: the labels with their numbers, and the
/// choices of the two pickers. A stored value that is not among the choices is index -1, no choice.
class SettingsForm final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString damageText READ damageText CONSTANT FINAL)
    Q_PROPERTY(QString fontSizeLabel READ fontSizeLabel NOTIFY fontSizeLabelChanged FINAL)
    Q_PROPERTY(QString speedLabel READ speedLabel NOTIFY speedLabelChanged FINAL)
    Q_PROPERTY(QString opacityLabel READ opacityLabel NOTIFY opacityLabelChanged FINAL)
    Q_PROPERTY(QString sensitivityLabel READ sensitivityLabel NOTIFY sensitivityLabelChanged FINAL)
    Q_PROPERTY(QStringList colorNames READ colorNames CONSTANT FINAL)
    Q_PROPERTY(int colorIndex READ colorIndex WRITE setColorIndex NOTIFY colorIndexChanged FINAL)
    Q_PROPERTY(QStringList countdownNames READ countdownNames CONSTANT FINAL)
    Q_PROPERTY(int countdownIndex READ countdownIndex WRITE setCountdownIndex NOTIFY
            countdownIndexChanged FINAL)

public:
    /// `settings` must outlive the form.
    explicit SettingsForm(SettingsStore& settings, QObject* parent = nullptr);

    /// A number as the labels show it, without its fraction, however large.
    static QString wholeNumber(double value);

    /// What is to be said of a file of preferences that could not be read; empty for nothing.
    QString damageText() const;

    QString fontSizeLabel() const;
    QString speedLabel() const;
    QString opacityLabel() const;
    QString sensitivityLabel() const;

    const QStringList& colorNames() const { return m_colorNames; } ///< In alphabetical order.
    int colorIndex() const;
    void setColorIndex(int index); ///< Ignores an index without a choice.

    static QStringList countdownNames();
    int countdownIndex() const;
    void setCountdownIndex(int index); ///< Ignores an index without a choice.

Q_SIGNALS:
    void fontSizeLabelChanged();
    void speedLabelChanged();
    void opacityLabelChanged();
    void sensitivityLabelChanged();
    void colorIndexChanged();
    void countdownIndexChanged();

private:
    SettingsStore& m_settings;
    QStringList m_colorNames;
    QStringList m_storedColorNames; ///< The same colours as the preferences name them.
};

} // namespace Orvello
