#pragma once

#include <QStringList>
#include <QUrl>
#include <QVariantMap>

namespace Orvello::LaunchArguments {

/// The preferences that a command line sets for one run: each pair `-Key value` gives one string
/// under its key.
///
/// A key is an argument that starts with exactly one dash and does not read as a negative number;
/// its value is the argument after it, if there is one that is not itself a key or a `--switch`. A
/// key without a value, and everything else, is passed over. Of a repeated key the last value
/// counts. `arguments` are those of the command line without the program's name.
[[nodiscard]] QVariantMap preferences(const QStringList& arguments);

/// The addresses that a command line asks to open: those arguments that start with a scheme and are
/// not the value of a preference.
[[nodiscard]] QList<QUrl> urls(const QStringList& arguments);

} // namespace Orvello::LaunchArguments
