#include "workbench/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace
{
QString translatorName()
{
    return u"workbenchTranslator"_s;
}

void load(const QLocale &locale, const QString &name, const QString &folder)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    translator->setObjectName(translatorName());
    if (translator->load(locale, name, u"_"_s, folder))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}
} // namespace

void Translations::install(const QString &language)
{
    // A translator that goes removes itself.
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>(translatorName()));
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    QLocale::setDefault(locale);
    load(locale, u"qtbase"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    load(locale, u"quillon"_s, u":/i18n"_s);
}
