#pragma once

#include "Orvello/Platform/Early/RunningInstance.h"

#include <QCoreApplication>
#include <QDir>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>

namespace Orvello {

/// What the command line asks for.
class LaunchOptions {
    Q_DECLARE_TR_FUNCTIONS(Orvello::LaunchOptions)

public:
    bool help = false;
    bool version = false;
    bool noStealth = false;
    bool onboarding = false;
    bool checkUpdates = false;
    bool voice = false;
    bool autostart = false;
    bool scripts = false;
    bool settings = false;
    bool toggle = false;
    QStringList files; ///< Decks to import: absolute paths.
    QList<QUrl> urls; ///< Addresses of the program's own scheme.
    QVariantMap preferences; ///< Each pair `-Key value`, for one run.
    QVariantMap environment; ///< The product's variables.
    QString importedPath; ///< The deck of the variable for it: an absolute path. Empty without it.
    QStringList mistakes; ///< What could not be understood, in words for the user.

    friend bool operator==(const LaunchOptions&, const LaunchOptions&) = default;

    static LaunchOptions of(const ProgramStart& start);

    /// The start of this process. `arguments` are without the program's name.
    static ProgramStart thisStart(const QStringList& arguments);

private:
    void takeOption(const QString& option);
    void takeOperand(const QString& operand, const QDir& directory);
    void takeAddress(const QString& address, const QDir& directory);
    void takeFile(const QString& name, const QDir& directory);
};

/// What the process ends with; CommandLineTable tells the user of it.
namespace ExitStatus {

inline constexpr int cannotRun = 1;
inline constexpr int mistaken = 2;
inline constexpr int refused = 3;

} // namespace ExitStatus

} // namespace Orvello
