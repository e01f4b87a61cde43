#include "host/toolkit_words.hpp"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace kova::host {

void SpeakPortuguese(QApplication& application)
{
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    auto* translator = new QTranslator(&application);
    if (translator->load(QStringLiteral("qtbase_pt_BR"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(translator);
}

} // namespace kova::host
