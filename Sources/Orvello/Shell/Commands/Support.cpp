#include "Orvello/Shell/Commands/Support.h"

namespace Orvello::Support {

using namespace Qt::StringLiterals;

QString versionText(const QString& version, const QString& build)
{
    const auto known = [](const QString& text) { return text.isEmpty() ? u"?"_s : text; };
    return known(version) + u" ("_s + known(build) + u')';
}

QUrl mailLink(const QString& address, const QString& versionText, const QString& osVersion)
{
    if (address.isEmpty())
        return {};
    const QString subject = u"Orvello "_s + versionText;
    const QString body = u"\n\n—\nOrvello "_s + versionText + u", macOS "_s + osVersion
        + u"\nIf something went wrong, attach the log: "
          u"Orvello menu → Help → Reveal Log Files."_s;
    // Every reserved character is encoded: mail programs read a plus sign or an ampersand as
    // something else.
    return QUrl::fromEncoded("mailto:" + QUrl::toPercentEncoding(address, "@") + "?subject="
            + QUrl::toPercentEncoding(subject) + "&body=" + QUrl::toPercentEncoding(body),
        QUrl::StrictMode);
}

} // namespace Orvello::Support
