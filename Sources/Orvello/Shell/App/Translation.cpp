#include "Orvello/Shell/App/Translation.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <optional>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

const QString prefix = u"orvello_"_s;

/// The languages for which the folder has files.
QStringList languagesIn(const QString& folder)
{
    QStringList languages;
    for (const QString& file :
        QDir(folder).entryList({ prefix + u"*.qm"_s }, QDir::Files, QDir::Name))
        languages.append(file.sliced(prefix.size()).chopped(QStringView(u".qm").size()));
    return languages;
}

/// Brazil's Portuguese is read in Portugal, but simplified Chinese is not what Taiwan reads.
bool isReadBy(const QLocale& language, const QLocale& user)
{
    return language.language() == user.language() && language.script() == user.script();
}

/// The file's language that the user likes best; none where that is the language of the sources.
std::optional<QString> chosen(const QStringList& available, const QStringList& wanted)
{
    for (const QString& name : wanted) {
        const QLocale user(name);
        if (user.language() == QLocale::English || user.language() == QLocale::C)
            return std::nullopt;
        for (const bool mustBeExact : { true, false }) {
            const auto match = std::ranges::find_if(available, [&](const QString& language) {
                const QLocale locale(language);
                return mustBeExact ? locale == user : isReadBy(locale, user);
            });
            if (match != available.end())
                return *match;
        }
    }
    return std::nullopt;
}

bool install(QCoreApplication& application, const QString& file, const QString& folder)
{
    auto* const translator = new QTranslator(&application);
    return translator->load(file, folder) && QCoreApplication::installTranslator(translator);
}

} // namespace

void installTranslation(QCoreApplication& application)
{
    installTranslation(application, QLocale::system().uiLanguages(), u":/Orvello/Translations"_s);
}

void installTranslation(
    QCoreApplication& application, const QStringList& languages, const QString& folder)
{
    const std::optional<QString> language = chosen(languagesIn(folder), languages);
    if (!language)
        return;
    // Qt's words for the standard buttons and dialogs. They come with Qt, or are missing.
    for (const QString& part : { u"qtbase_"_s, u"qtdeclarative_"_s })
        install(application, part + *language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    // Qt asks the translator installed last first.
    install(application, prefix + *language, folder);
    QGuiApplication::setLayoutDirection(QLocale(*language).textDirection());
}

} // namespace Orvello
