#pragma once

#include <QStringList>
#include <QVariantMap>

namespace Orvello::LaunchArguments {

/// A command line taken apart, each part in the order of the command line.
struct Parts {
    QVariantMap preferences; ///< Each pair `-Key value`, as a string under its key.
    QStringList options; ///< `--switches`, and keys without a value.
    QStringList operands; ///< Files and addresses: all the rest.
};

/// A key is an argument that starts with exactly one dash and does not read as a negative number;
/// its value is the argument after it, if there is one that is not itself a key or a `--switch`. Of
/// a repeated key the last value counts. Everything after a `--` is an operand. `arguments` are
/// those of the command line without the program's name.
[[nodiscard]] Parts parts(const QStringList& arguments);

/// The preferences that a command line sets for one run.
[[nodiscard]] QVariantMap preferences(const QStringList& arguments);

} // namespace Orvello::LaunchArguments
