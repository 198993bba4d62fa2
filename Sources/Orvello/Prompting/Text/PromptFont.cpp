#include "Orvello/Prompting/Text/PromptFont.h"

#include <QDir>
#include <QFontDatabase>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// Empty where the build ships no face: see this folder's CMakeLists.txt.
QString shippedFamily()
{
    QString family;
    const QDir folder(u":/Orvello/Fonts"_s);
    for (const QFileInfo& file : folder.entryInfoList({ u"*.ttf"_s })) {
        const int font = QFontDatabase::addApplicationFont(file.filePath());
        const QStringList families = QFontDatabase::applicationFontFamilies(font);
        if (!families.isEmpty())
            family = families.first();
    }
    return family;
}

} // namespace

QString PromptFont::family()
{
    static const QString shipped = shippedFamily();
    return shipped.isEmpty() ? u".AppleSystemUIFontRounded"_s : shipped;
}

} // namespace Orvello
