#pragma once

#include "Orvello/Platform/Early/TimeSource.h"
#include "Orvello/Prompting/Engine/SpokenLength.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace Orvello {

class ScrollEngine;
class SettingsStore;

/// What the scrolling speed means for the text that is prompted, at its size and width: so many
/// words a minute, on average from its first line to its end. Main thread.
class ReadingPace final : public QObject {
    Q_OBJECT
    /// In words a minute, or in characters of a text without spaces; 0 while there is no text that
    /// scrolls.
    Q_PROPERTY(double unitsPerMinute READ unitsPerMinute NOTIFY changed FINAL)
    Q_PROPERTY(bool isByCharacters READ isByCharacters NOTIFY changed FINAL)
    Q_PROPERTY(QString description READ description NOTIFY changed FINAL)
    Q_PROPERTY(bool isKept READ isKept WRITE setKept NOTIFY keptChanged FINAL)

public:
    /// People speak at 100 to 160 words a minute.
    static constexpr double fastestSpeech = 190;

    /// The same for characters: broadcasters of Chinese and Japanese read some 300 a minute.
    static constexpr double fastestCharacters = 350;

    /// All must outlive it.
    ReadingPace(
        SettingsStore& settings, ScrollEngine& engine, TimeSource& time, QObject* parent = nullptr);
    ~ReadingPace() override;

    void setText(const QString& text); ///< The one that the engine scrolls.
    bool isByCharacters() const { return length().isByCharacters(); }
    const SpokenLength& length() const;

    double unitsPerMinute() const;

    /// In the user's language, as a whole sentence.
    QString description() const;

    /// Sets the speed. A pace that the speed's bounds do not allow becomes the nearest that they
    /// do. Ignored while there is no text that scrolls.
    Q_INVOKABLE void setUnitsPerMinute(double pace);

    /// Whether a text of another size, width or density scrolls at another speed and the same pace.
    /// What changes the speed then changes the pace.
    bool isKept() const;
    void setKept(bool isKept);

Q_SIGNALS:
    void changed();
    void keptChanged();

private:
    void onSpeedChanged();
    void onTextChanged();
    void restore();

    SettingsStore& m_settings;
    ScrollEngine& m_engine;
    TimeSource& m_time;
    QString m_text;
    mutable std::optional<SpokenLength> m_length; ///< None until somebody asks.
    bool m_isRestoring = false;
    std::unique_ptr<TimeSource::Ticket> m_restore; ///< Once the text's layout has come to rest.
};

} // namespace Orvello
