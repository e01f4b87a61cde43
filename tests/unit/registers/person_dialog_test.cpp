// A customer's data: the dialog that exports them and makes him anonymous.

#include "tests/unit/registers/registers_fixture.hpp"

#include "family/data/sources/data_source.hpp"
#include "family/registers/registers.hpp"
#include "registers/person_dialog.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QProgressBar>

namespace kova::registers::test {

namespace {

constexpr family::Key Jose = 1;
const family::Author Later{"1", "Ana", "2026-12-01 10:00:00", "BALCAO"};

} // namespace

class DataOfThePerson : public CadastrosTest {
protected:
    DataOfThePerson()
    {
        EXPECT_TRUE(QDir().mkpath(to_));
        dialog_.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog_));
        Line("pasta").setText(to_);
    }

    template <class Kind> Kind& In(const char* name)
    {
        auto* found = dialog_.findChild<Kind*>(QString::fromUtf8(name));
        if (found == nullptr)
            throw std::runtime_error(std::string("there is no ") + name);
        return *found;
    }
    QLineEdit& Line(const char* name) { return In<QLineEdit>(name); }
    std::string Text(const char* name) { return In<QLabel>(name).text().toStdString(); }

    /// Until the work is over: the dialog can be closed again.
    void Await()
    {
        EXPECT_TRUE(
            QTest::qWaitFor([this] { return In<QPushButton>("fechar").text() == QLatin1String("&Fechar"); }));
    }
    void TypeCode(const char* code)
    {
        Line("codigo").setFocus();
        Line("codigo").selectAll();
        QTest::keyClicks(&Line("codigo"), QString::fromUtf8(code));
    }
    /// Attends somebody who has no register.
    void Book(const std::string& name, const std::string& contacts)
    {
        Elsewhere(
            "insert into servico (codigo, nome, nome_de_busca, descricao, numero_do_tipo_de_servico,"
            " duracao_em_minutos, preco_em_centavos, custo_em_centavos) values (1, 'Banho', 'banho', '', 4,"
            " 60, 6000, 0)");
        const std::string booked =
            "insert into agendamento (data_inicial, hora_inicial, data_final, hora_final, "
            "tipo_do_agendamento,"
            " nome_do_cliente, canais_do_cliente, nome_do_animal, numero_do_tipo_de_servico, "
            "codigo_do_servico,"
            " codigo_do_funcionario, situacao, incluido_em, incluido_por) values ('2026-11-25', '09:00',"
            " '2026-11-25', '10:00', 1, '"
            + name + "', '" + contacts + "', 'Rex', 4, 1, 1, 2, '2026-11-20 09:00:00', 'Ana')";
        Elsewhere(booked.c_str());
    }

    const QString to_ = QString::fromStdString((folder_.Path() / "dados").string());
    const Desk desk_{family::OpenDatabase(file_), [] { return Later; }};
    PersonDialog dialog_{desk_, Jose, nullptr};
};

TEST_F(DataOfThePerson, AreWrittenIntoTheFolderByTheKeyboardAlone)
{
    const int width = dialog_.width();
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "pasta");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    Await();
    EXPECT_EQ(Text("falha"), "");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "pasta");
    EXPECT_EQ(dialog_.width(), width);
    // The keyboard stays where it is taken to then.
    Line("codigo").setFocus();
    for (const char letter : {'2', '3', '1'})
        QTest::keyClick(QApplication::focusWidget(), letter);
    EXPECT_EQ(Line("codigo").text(), "231");
    EXPECT_NE(Text("recado").find("cliente-1.html"), std::string::npos) << Text("recado");
    QFile page(to_ + QStringLiteral("/cliente-1.html"));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_TRUE(page.readAll().contains("José Antônio Peçanha"));
    EXPECT_TRUE(QFile::exists(to_ + QStringLiteral("/cliente-1.json")));
    QTest::keyClick(&Line("pasta"), Qt::Key_Return);
    Await();
    EXPECT_NE(Text("falha").find("já existe"), std::string::npos) << Text("falha");
    EXPECT_EQ(Text("recado"), "");
}

TEST_F(DataOfThePerson, AreMadeAnonymousOnlyWhereTheCodeWasTyped)
{
    for (const char* wrong : {"", "2", "11", "x"}) {
        TypeCode(wrong);
        EXPECT_FALSE(In<QPushButton>("anonimizar").isEnabled()) << wrong;
        QTest::keyClick(&Line("codigo"), Qt::Key_Return);
    }
    EXPECT_EQ(Stored("select nome from cliente where codigo = 1"),
              std::vector<std::string>{"José Antônio Peçanha"});
    // What is looked through in memory is read by now.
    const auto& customers = family::registers::CustomerRegister();
    for (const char* sought : {"jose", "ze@example", "91234", "pacoca"})
        ASSERT_EQ(customers.Find(*desk_.database, sought).size(), 1U) << sought;
    TypeCode("1");
    EXPECT_TRUE(In<QPushButton>("anonimizar").isEnabled());
    QTest::keyClick(&Line("codigo"), Qt::Key_Return);
    Await();
    EXPECT_EQ(Text("falha"), "");
    for (const char* sought : {"jose", "ze@example", "91234", "pacoca"})
        EXPECT_TRUE(customers.Find(*desk_.database, sought).empty()) << sought;
    EXPECT_NE(Text("recado").find("ficou anônimo: 2 canais de comunicação, 1 animal"), std::string::npos)
        << Text("recado");
    EXPECT_TRUE(dialog_.IsAnonymous());
    EXPECT_EQ(Stored("select nome, documento, situacao from cliente where codigo = 1"),
              std::vector<std::string>{"Pessoa anonimizada 1||4"});
    EXPECT_EQ(Stored("select usuario, momento from auditoria where operacao = 'anonimizacao'"),
              std::vector<std::string>{"1 - Ana|2026-12-01 10:00:00"});
    EXPECT_FALSE(In<QPushButton>("anonimizar").isEnabled());
    EXPECT_FALSE(Line("codigo").isEnabled());
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "fechar");
}

TEST_F(DataOfThePerson, AreKeptWhereSomethingSpeaksAgainstIt)
{
    Book("Zé", "(11) 91234-5678");
    Elsewhere("update agendamento set situacao = 1, data_inicial = '2026-12-20', data_final = '2026-12-20'");
    TypeCode("1");
    QTest::keyClick(&Line("codigo"), Qt::Key_Return);
    Await();
    EXPECT_NE(Text("falha").find("ainda tem agendamentos marcados"), std::string::npos) << Text("falha");
    EXPECT_FALSE(dialog_.IsAnonymous());
    EXPECT_TRUE(In<QPushButton>("anonimizar").isEnabled());
    EXPECT_EQ(Stored("select situacao from cliente where codigo = 1"), std::vector<std::string>{"1"});
}

TEST_F(DataOfThePerson, AskAboutAppointmentsThatOnlyHaveTheSameName)
{
    Book("Jose Antonio Pecanha", "(21) 3333-4444");
    TypeCode("1");
    EXPECT_TRUE(In<QCheckBox>("mesmoNome").isHidden());
    QTest::keyClick(&Line("codigo"), Qt::Key_Return);
    Await();
    EXPECT_NE(Text("falha").find("só o mesmo nome"), std::string::npos) << Text("falha");
    EXPECT_FALSE(In<QCheckBox>("mesmoNome").isHidden());
    EXPECT_FALSE(In<QCheckBox>("mesmoNome").isChecked());
    In<QCheckBox>("mesmoNome").setFocus();
    QTest::keyClick(&In<QCheckBox>("mesmoNome"), Qt::Key_Space);
    QTest::keyClick(&Line("codigo"), Qt::Key_Return);
    Await();
    EXPECT_TRUE(dialog_.IsAnonymous()) << Text("falha");
    EXPECT_EQ(Stored("select nome_do_cliente, canais_do_cliente from agendamento"),
              std::vector<std::string>{"Pessoa anonimizada|"});
}

TEST_F(DataOfThePerson, AreExplainedAndCanBeReachedWithoutAMouse)
{
    for (const char* name : {"pasta", "codigo"})
        EXPECT_FALSE(Line(name).accessibleName().isEmpty()) << name;
    EXPECT_EQ(In<QProgressBar>("andamento").accessibleName(), "Andamento");
    for (const char* name : {"escolherPasta", "exportar", "anonimizar", "fechar"})
        EXPECT_TRUE(In<QPushButton>(name).text().contains(QLatin1Char('&'))) << name;
    QTest::keyClick(&dialog_, Qt::Key_Escape);
    EXPECT_FALSE(dialog_.isVisible());
}

} // namespace kova::registers::test
