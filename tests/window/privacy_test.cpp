// What a customer may ask of the shop about his data, in the application's own window, by the keyboard.

#include "tests/window/shop.hpp"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace kova::window_test {

namespace {

constexpr const char* List = "frmLista";

class DataOfACustomer : public Shop {
protected:
    DataOfACustomer()
    {
        Execute("update agendamento set situacao = 3 where situacao = 1 and codigo_do_cliente = " + code_);
        Execute("update pre_venda set situacao = 3 where situacao = 1");
        Execute("update agendamento set nome_do_cliente = 'Outra pessoa', canais_do_cliente = ''"
                " where tipo_do_agendamento = 1");
        std::filesystem::create_directories(Documents());
    }

    static QWidget* Window()
    {
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->findChild<QWidget*>(QStringLiteral("container")))
                return top;
        }
        return nullptr;
    }

    static QWidget* Dialog()
    {
        QWidget* top = QApplication::activeModalWidget();
        return top != nullptr && top->objectName() == QLatin1String("DadosDaPessoa") ? top : nullptr;
    }
    static std::string Told()
    {
        const auto* label = Dialog() ? Dialog()->findChild<QLabel*>(QStringLiteral("recado")) : nullptr;
        return label == nullptr ? "" : label->text().toStdString();
    }

    static void TypeInto(const char* box, const std::string& text)
    {
        auto* line = Dialog()->findChild<QLineEdit*>(QString::fromLatin1(box));
        line->setFocus();
        line->selectAll();
        for (const QChar letter : QString::fromStdString(text))
            QTest::sendKeyEvent(QTest::Click, line, Qt::Key_unknown, QString(letter), Qt::NoModifier);
        QTest::keyClick(line, Qt::Key_Return);
    }

    Receptionist& OpensTheDialog()
    {
        receptionist->WaitsFor(List).Presses("Alt+2").WaitsUntil("the search has the keyboard", [] {
            const QWidget* box = QApplication::focusWidget();
            return box != nullptr && box->objectName() == QLatin1String("pesquisa");
        });
        receptionist->Does("the menu",
                           [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_M, Qt::AltModifier); });
        return receptionist->Picks("&Dados da pessoa...").WaitsUntil("the dialog is there", [] {
            return Dialog() != nullptr;
        });
    }

    const std::string code_ = Value("select codigo from cliente order by nome_de_busca, codigo");
    const std::string name_ = Value("select nome from cliente order by nome_de_busca, codigo");
};

} // namespace

TEST_F(DataOfACustomer, AreExportedAndThenTakenAwayByTheKeyboard)
{
    const std::string appointments = Value("select count(*) from agendamento");
    const std::string values = Value("select coalesce(sum(valor_em_centavos), 0) from pre_venda");
    std::string saved, done;
    OpensTheDialog()
        .Does("export", [this] { TypeInto("pasta", Documents().string()); })
        .WaitsUntil("the files are written", [] { return Told().find("Gravados") != std::string::npos; })
        .Does("type the code",
              [&] {
                  saved = Told();
                  TypeInto("codigo", code_);
              })
        .WaitsUntil("it is done", [] { return Told().find("ficou anônimo") != std::string::npos; })
        .Does("leave",
              [&] {
                  done = Told();
                  QTest::keyClick(Dialog(), Qt::Key_Escape);
              })
        .WaitsUntil("the dialog is gone", [] { return Dialog() == nullptr; })
        .Does("close", [] { Window()->close(); });
    Run();
    const std::string page = (Documents() / ("cliente-" + code_ + ".html")).string();
    EXPECT_NE(saved.find(page), std::string::npos) << saved;
    QFile file(QString::fromStdString(page));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains(QByteArray::fromStdString(name_)));
    EXPECT_EQ(Value("select nome from cliente where codigo = " + code_), "Pessoa anonimizada " + code_);
    EXPECT_EQ(Value("select usuario from auditoria where operacao = 'anonimizacao' and chave = " + code_),
              "0 - Antônia");
    EXPECT_EQ(Value("select count(*) from agendamento"), appointments);
    EXPECT_EQ(Value("select coalesce(sum(valor_em_centavos), 0) from pre_venda"), values);
}

} // namespace kova::window_test
