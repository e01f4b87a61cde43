#include "host/shell/help.hpp"

#include "host/folders.hpp"
#include "host/shell/main_window.hpp"
#include "system/path_text.hpp"

#include <QAction>
#include <QDesktopServices>
#include <QKeySequence>
#include <QMenu>
#include <QShortcut>
#include <QTabBar>
#include <QUrl>

#include <utility>

namespace kova::host {

namespace {

/// Of its notices.
const QString Subject = QStringLiteral("guia");

/// Headings of the guide, as they stand in it.
constexpr std::pair<const char*, const char*> Sections[] = {
    {"Agenda", "a-lista-do-dia"},
    {"Cadastros", "cadastros"},
    {"Histórico", "histórico"},
    {"Horários", "horários"},
};

QUrl PageOf(const std::filesystem::path& guide, const QString& section)
{
    QUrl page = QUrl::fromLocalFile(QString::fromStdString(system::TextOf(guide)));
    page.setFragment(section);
    return page;
}

void OpenGuide(MainWindow& window, const std::filesystem::path& guide, const QString& section,
               const OpenPage& open)
{
    std::error_code unreadable;
    const QString file = QString::fromStdString(system::TextOf(guide));
    if (!std::filesystem::exists(guide, unreadable)) {
        window.ShowNotice(Subject,
                          QStringLiteral("Esta instalação não tem o guia: falta o arquivo \"%1\". Instale o "
                                         "programa novamente.")
                              .arg(file));
    } else if (!open(PageOf(guide, section))) {
        window.ShowNotice(Subject,
                          QStringLiteral("O guia não pôde ser aberto: não há um navegador neste computador. "
                                         "Ele está no arquivo \"%1\".")
                              .arg(file));
    }
}

} // namespace

std::filesystem::path GuideFile() { return ProgramFolder() / "guia" / "index.html"; }

QString GuideSection(const QString& tab)
{
    for (const auto& [name, section] : Sections) {
        if (tab == QString::fromUtf8(name))
            return QString::fromUtf8(section);
    }
    return {};
}

bool OpenOnDesktop(const QUrl& page) { return QDesktopServices::openUrl(page); }

void AddHelp(MainWindow& window, const std::filesystem::path& guide, OpenPage open)
{
    auto* tabs = window.findChild<QTabBar*>();
    const auto openHere = [&window, guide, tabs, open = std::move(open)] {
        OpenGuide(window, guide, GuideSection(tabs->tabText(tabs->currentIndex())), open);
    };
    QAction* help = window.Menu().addAction(QStringLiteral("A&juda"), &window, openHere);
    help->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F1));
    window.addAction(help);

    // The module's forms list their keys by F1.
    auto* key = new QShortcut(QKeySequence(Qt::Key_F1), &window);
    key->setEnabled(tabs->currentIndex() != 0);
    QObject::connect(key, &QShortcut::activated, &window, openHere);
    QObject::connect(tabs, &QTabBar::currentChanged, key, [key](int tab) { key->setEnabled(tab != 0); });
}

} // namespace kova::host
