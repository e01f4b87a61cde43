#include "tests/window/shop_with_users.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/users/accounts.hpp"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace kova::window_test {

void ShopWithUsers::AddUser(const std::string& name, family::Key role, const std::string& password,
                            const std::string& pin)
{
    const auto database = family::OpenDatabase(Database());
    const family::Secret secret{std::string(password)};
    const auto made = family::SaveAccount(*database, {0, name, role, true}, &secret, owner_);
    EXPECT_EQ(made.why, "");
    if (pin.empty())
        return;
    const family::Secret digits{std::string(pin)};
    EXPECT_EQ(family::SetPin(*database, made.code, &digits, owner_).why, "");
}

void ShopWithUsers::AddAnaAndLia()
{
    AddUser("Ana", Administration, "Gato-Preto 1");
    AddUser("Lia", Reception, "Laço Azul 22", "2580");
}

QWidget* ShopWithUsers::Window()
{
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top->isVisible() && top->findChild<QWidget*>(QStringLiteral("container")))
            return top;
    }
    return nullptr;
}

QWidget* ShopWithUsers::Dialog(const char* name)
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal->objectName() == QLatin1String(name) ? modal : nullptr;
}

std::string ShopWithUsers::Told() { return In<QLabel>(Question(), "recusa").text().toStdString(); }

bool ShopWithUsers::IsReady()
{
    return Question() != nullptr && In<QPushButton>(Question(), "entrar").isEnabled();
}

void ShopWithUsers::Fill(QLineEdit& box, const QString& text)
{
    box.setFocus();
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(letter), Qt::NoModifier);
}

void ShopWithUsers::Enter(const QString& name, const QString& secret)
{
    if (!name.isEmpty())
        Fill(*In<QComboBox>(Question(), "nome").lineEdit(), name);
    Fill(In<QLineEdit>(Question(), "segredo"), secret);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

Receptionist& ShopWithUsers::Enters(const char* name, const char* secret)
{
    return receptionist->WaitsUntil("somebody is asked for", [] { return IsReady(); })
        .Does(std::string("enter as ") + name,
              [name, secret] { Enter(QString::fromUtf8(name), QString::fromUtf8(secret)); });
}

Receptionist& ShopWithUsers::WaitsForAnswer()
{
    return receptionist->WaitsUntil("there is an answer",
                                    [] { return Question() != nullptr && !Told().empty(); });
}

std::string ShopWithUsers::LastAuthor() const
{
    return Value("select usuario from auditoria where tabela = 'agendamento' order by codigo desc limit 1");
}

} // namespace kova::window_test
