// Types a nickname into the first customer of a shop and goes on until somebody ends it by force.
// Usage: registers_typist DATABASE FOLDER_OF_DRAFTS NICKNAME

#include "family/data/sources/data_source.hpp"
#include "registers/registers_page.hpp"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

int main(int count, char** words)
{
    using namespace kova;
    if (count != 4)
        return 2;
    QApplication application(count, words);
    registers::Desk desk{family::OpenDatabase(words[1]),
                         [] {
                             return family::Author{"1", "Ana", "2026-11-20 09:00:00", "BALCAO"};
                         },
                         std::make_shared<screens::DraftFolder>(QString::fromUtf8(words[2]))};
    registers::RegistersPage page(std::move(desk), nullptr);
    page.show();
    auto* box = page.findChild<QLineEdit*>(QStringLiteral("Apelido"));
    box->setFocus();
    QTest::keyClicks(box, QString::fromUtf8(words[3]));
    return QApplication::exec();
}
