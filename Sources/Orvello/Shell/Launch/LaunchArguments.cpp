#include "Orvello/Shell/Launch/LaunchArguments.h"

namespace Orvello::LaunchArguments {

using namespace Qt::StringLiterals;

namespace {

/// Whether the argument starts with a dash that makes it a key or a switch: not that of a negative
/// number, nor a dash alone, which by custom stands for a file.
bool startsOption(const QString& argument)
{
    if (argument.size() < 2 || argument[0] != u'-')
        return false;
    const QChar next = argument[1];
    return next != u'.' && (next < u'0' || next > u'9');
}

bool isKey(const QString& argument) { return startsOption(argument) && argument[1] != u'-'; }

} // namespace

Parts parts(const QStringList& arguments)
{
    Parts parts;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (argument == u"--"_s) {
            parts.operands += arguments.sliced(i + 1);
            break;
        }
        const bool hasValue
            = isKey(argument) && i + 1 < arguments.size() && !startsOption(arguments[i + 1]);
        if (hasValue)
            parts.preferences.insert(argument.sliced(1), arguments[++i]);
        else if (startsOption(argument))
            parts.options.append(argument);
        else
            parts.operands.append(argument);
    }
    return parts;
}

QVariantMap preferences(const QStringList& arguments) { return parts(arguments).preferences; }

} // namespace Orvello::LaunchArguments
