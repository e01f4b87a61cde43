#include "host/toolkit_words.hpp"

#include "system/path_text.hpp"
#include "system/program_path.hpp"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <string>

namespace kova::host {

void SpeakPortuguese(QApplication& application)
{
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    auto* translator = new QTranslator(&application);
    // Inside a program that is not of the family, the toolkit takes that one's folder for its own.
    const std::string besides = system::TextOf(system::OwnPath().parent_path() / "translations");
    for (const QString& folder :
         {QLibraryInfo::path(QLibraryInfo::TranslationsPath), QString::fromStdString(besides)}) {
        if (translator->load(QStringLiteral("qtbase_pt_BR"), folder)) {
            QApplication::installTranslator(translator);
            return;
        }
    }
}

} // namespace kova::host
