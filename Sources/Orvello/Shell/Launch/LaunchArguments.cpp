#include "Orvello/Shell/Launch/LaunchArguments.h"

#include <QRegularExpression>

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

/// The scheme of an address, as RFC 3986 writes it.
bool isAddress(const QString& argument)
{
    static const QRegularExpression scheme(u"^[A-Za-z][A-Za-z0-9+.-]+:"_s);
    return scheme.match(argument).hasMatch() && QUrl(argument, QUrl::StrictMode).isValid();
}

/// Walks over a command line: each pair of a key and its value, and each argument by itself.
template <typename Pair, typename Single>
void walk(const QStringList& arguments, Pair pair, Single single)
{
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const bool hasValue
            = isKey(arguments[i]) && i + 1 < arguments.size() && !startsOption(arguments[i + 1]);
        if (hasValue) {
            pair(arguments[i].sliced(1), arguments[i + 1]);
            ++i;
        } else {
            single(arguments[i]);
        }
    }
}

} // namespace

QVariantMap preferences(const QStringList& arguments)
{
    QVariantMap preferences;
    walk(
        arguments,
        [&](const QString& key, const QString& value) { preferences.insert(key, value); },
        [](const QString&) {});
    return preferences;
}

QList<QUrl> urls(const QStringList& arguments)
{
    QList<QUrl> urls;
    walk(
        arguments, [](const QString&, const QString&) {},
        [&](const QString& argument) {
            if (isAddress(argument))
                urls.append(QUrl(argument, QUrl::StrictMode));
        });
    return urls;
}

} // namespace Orvello::LaunchArguments
