#include "Orvello/Shell/Commands/Support.h"

#include <QCoreApplication>

namespace Orvello::Support {

using namespace Qt::StringLiterals;

QString versionText(const QString& version, const QString& build)
{
    const auto known = [](const QString& text) { return text.isEmpty() ? u"?"_s : text; };
    return u"%1 (%2)"_s.arg(known(version), known(build));
}

QUrl mailLink(const QString& address, const QString& versionText, const QString& operatingSystem)
{
    if (address.isEmpty())
        return {};
    //: The subject of a mail to the support. %1: the program's version.
    const QString subject
        = QCoreApplication::translate("Orvello::Support", "Orvello %1").arg(versionText);
    //: The last lines of a mail to the support, below what the user writes. %1: the program's
    //: version, %2: the operating system with its version. The path names the menu's lines.
    const QString signature = QCoreApplication::translate("Orvello::Support",
        "Orvello %1, %2\nIf something went wrong, attach the log: Orvello menu → Help → Reveal "
        "Log Files.")
                                  .arg(versionText, operatingSystem);
    // Every reserved character is encoded: mail programs read a plus sign or an ampersand as
    // something else.
    return QUrl::fromEncoded("mailto:" + QUrl::toPercentEncoding(address, "@")
            + "?subject=" + QUrl::toPercentEncoding(subject)
            + "&body=" + QUrl::toPercentEncoding(u"\n\n—\n"_s + signature),
        QUrl::StrictMode);
}

} // namespace Orvello::Support
