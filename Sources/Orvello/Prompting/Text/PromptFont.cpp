#include "Orvello/Prompting/Text/PromptFont.h"

#include <QFile>
#include <QFontDatabase>

namespace Orvello {

using namespace Qt::StringLiterals;

QString PromptFont::family()
{
    // Apple's own rounded face has no name that could be asked for; the file has one, which is
    // learnt by loading it.
    static const QString found = familyOf(
        { u"/System/Library/Fonts/SFNSRounded.ttf"_s, u":/Orvello/Fonts/Quicksand-Bold.ttf"_s });
    return found;
}

QString PromptFont::familyOf(const QStringList& files)
{
    for (const QString& file : files) {
        if (!QFile::exists(file))
            continue; // Qt would complain on standard error.
        const int font = QFontDatabase::addApplicationFont(file);
        const QStringList families = QFontDatabase::applicationFontFamilies(font);
        if (!families.isEmpty())
            return families.first();
    }
    return {};
}

} // namespace Orvello
