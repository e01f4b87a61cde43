// Registers that go to files, on the screen.

#include "tests/unit/registers/registers_fixture.hpp"

#include <QApplication>

#include <fstream>
#include <sstream>

namespace kova::registers::test {

namespace {

using Lines = std::vector<std::string>;

constexpr int LongEnough = 20'000;

} // namespace

class Exporting : public CadastrosTest {
protected:
    std::string File(const std::string& name) const { return (folder_.Path() / name).string(); }

    /// The dialog opens by the button below the names, and gets the keyboard.
    void Begin()
    {
        Press("exportarPlanilha");
        ASSERT_TRUE(QTest::qWaitFor([] {
            const QWidget* dialog = QApplication::activeModalWidget();
            const QWidget* focus = QApplication::focusWidget();
            return dialog != nullptr && focus != nullptr && dialog->isAncestorOf(focus);
        }));
    }

    void TypePath(const std::string& path) { TypeOver("arquivo", path.c_str()); }
};

TEST_F(Exporting, WritesTheRegisterOnShow)
{
    TurnTo("Espécies");
    Begin();
    EXPECT_EQ(Focused(), "arquivo");
    EXPECT_TRUE(Find<QLineEdit>("arquivo").text().endsWith(QStringLiteral("/especies.csv")));
    TypePath(File("especies.csv"));
    Keys(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return Find<QLabel>("resumo").text().contains(QStringLiteral("exportada")); }, LongEnough));
    std::ifstream file(File("especies.csv"), std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    EXPECT_EQ(content.str().find("\xEF\xBB\xBF"
                                 "Código;Nome;Situação\r\n1;Canina;Ativo\r\n"),
              0u)
        << content.str();
    EXPECT_EQ(Focused(), "cancelar");
    Keys(Qt::Key_Return);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Exporting, NeverReplacesAFile)
{
    std::ofstream(File("planilha.csv")) << "nota";
    Begin();
    TypePath(File("planilha.csv"));
    Press("exportar");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Reasons().empty(); }, LongEnough));
    EXPECT_EQ(Reasons(),
              Lines{"O arquivo \"" + File("planilha.csv")
                    + "\" já existe. Escolha outro nome ou apague o arquivo."});
    EXPECT_EQ(Focused(), "arquivo");
    TypePath("");
    Press("exportar");
    EXPECT_EQ(Reasons(), Lines{"Informe o arquivo."});
}

} // namespace kova::registers::test
