#include "Orvello/Platform/LaunchArguments.h"

namespace Orvello::LaunchArguments {
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

QVariantMap preferences(const QStringList& arguments)
{
    QVariantMap preferences;
    for (qsizetype i = 1; i + 1 < arguments.size(); ++i) {
        if (!isKey(arguments[i]) || startsOption(arguments[i + 1]))
            continue;
        preferences.insert(arguments[i].sliced(1), arguments[i + 1]);
        ++i;
    }
    return preferences;
}

} // namespace Orvello::LaunchArguments
