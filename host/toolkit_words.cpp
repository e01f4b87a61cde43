#include "host/toolkit_words.hpp"

#include "system/path_text.hpp"
#include "system/program_path.hpp"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace kova::host {

QStringList FoldersOfToolkitWords()
{
    const auto beside = system::OwnPath().parent_path() / "translations";
    return {QLibraryInfo::path(QLibraryInfo::TranslationsPath),
            QString::fromStdString(system::TextOf(beside))};
}

void SpeakPortuguese(QApplication& application, const QStringList& folders)
{
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    auto* translator = new QTranslator(&application);
    for (const QString& folder : folders) {
        if (translator->load(QStringLiteral("qtbase_pt_BR"), folder)) {
            QApplication::installTranslator(translator);
            return;
        }
    }
}

} // namespace kova::host
