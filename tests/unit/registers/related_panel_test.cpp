// The pages beside the form: what belongs to the row on show.

#include "tests/unit/registers/registers_fixture.hpp"

#include "screens/tabs.hpp"

#include <QComboBox>

namespace kova::registers::test {

using Lines = std::vector<std::string>;

class RelatedPages : public CadastrosTest {
protected:
    RelatedPages()
    {
        Elsewhere("insert into servico (codigo, nome, nome_de_busca, descricao, numero_do_tipo_de_servico,"
                  " duracao_em_minutos, preco_em_centavos, custo_em_centavos, quantidade_de_sessoes)"
                  " values (90, 'Banho', 'banho', '', 4, 60, 6000, 0, 4)");
        Elsewhere("insert into animal (codigo, codigo_do_cliente, nome, sexo, codigo_da_raca, porte, cor,"
                  " nome_de_busca) select 2, 1, 'Bidu', 'M', codigo_da_raca, 1, '', 'bidu' from animal");
        Elsewhere("insert into pacote (codigo, codigo_do_servico, criado_em, criado_por)"
                  " values (7, 90, '2026-11-01 09:00:00', 'Ana')");
        Book(1, 2, "select '2026-11-' || (10 + i)", 2);
        Book(2, 1, "select '2026-12-01'", 1);
    }

    /// Adds that many appointments of José's animal in the package, `day` selects the date of the i-th.
    void Book(int animal, int count, const std::string& day, int status)
    {
        const std::string statement =
            "with recursive n(i) as (select 1 union all select i + 1 from n where i < "
            + std::to_string(count)
            + ") insert into agendamento (data_inicial, hora_inicial, data_final, hora_final,"
              " tipo_do_agendamento, codigo_do_cliente, codigo_do_animal, numero_do_tipo_de_servico,"
              " codigo_do_servico, codigo_do_funcionario, codigo_do_pacote, situacao, incluido_em,"
              " incluido_por) select ("
            + day + "), '09:00', (" + day + "), '10:00', 0, 1, " + std::to_string(animal) + ", 4, 90, 1, 7, "
            + std::to_string(status) + ", '2026-11-01 09:00:00', 'Ana' from n";
        Elsewhere(statement.c_str());
    }

    Lines Related()
    {
        const auto& model = *Find<QTableView>("relacionados").model();
        Lines rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            std::string texts;
            for (int column = 0; column < model.columnCount(); ++column)
                texts += (column == 0 ? "" : "|") + model.index(row, column).data().toString().toStdString();
            rows.push_back(texts);
        }
        return rows;
    }
    std::string HowMany() { return Find<QLabel>("quantos").text().toStdString(); }
};

TEST_F(RelatedPages, TellTheAppointmentsByTheKeyboardAlone)
{
    Keys(Qt::Key_Down);
    Keys(Qt::Key_F6);
    EXPECT_EQ(Focused(), "relacionados");
    EXPECT_EQ(Related(),
              (Lines{"01/12/2026|09:00|Bidu|Banho|Bia|Agendado|60,00",
                     "12/11/2026|09:00|Paçoca|Banho|Bia|Atendido|60,00",
                     "11/11/2026|09:00|Paçoca|Banho|Bia|Atendido|60,00"}));
    EXPECT_EQ(HowMany(), "3 encontrados");
    Keys(Qt::Key_F6);
    EXPECT_EQ(Related(), Lines{"Banho|01/11/2026|4|2|1|1|2"});
    EXPECT_EQ(HowMany(), "1 encontrado");
    Keys(Qt::Key_F6);
    EXPECT_EQ(Focused(), "Tipo de pessoa") << "behind the last page comes the form";
}

TEST_F(RelatedPages, NarrowTheAppointmentsToOneAnimal)
{
    Keys(Qt::Key_Down);
    Keys(Qt::Key_F6);
    auto& animals = Find<QComboBox>("escolha");
    EXPECT_EQ(animals.accessibleName(), QStringLiteral("Animal"));
    EXPECT_EQ(animals.count(), 3);
    animals.setFocus();
    while (animals.currentText() != QStringLiteral("Paçoca"))
        Keys(Qt::Key_Down);
    EXPECT_EQ(Related().size(), 2U);
    while (animals.currentText() != QStringLiteral("Todos"))
        Keys(Qt::Key_Up);
    EXPECT_EQ(Related().size(), 3U);
}

TEST_F(RelatedPages, FollowTheRowOnShow)
{
    auto& tabs = Find<screens::Tabs>("paginas");
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
    EXPECT_EQ(Related(), Lines{});
    EXPECT_EQ(HowMany(), "Ainda não há atendimentos.");
    Find<QLineEdit>("pesquisa").setFocus();
    Keys(Qt::Key_Down);
    EXPECT_EQ(Related().size(), 3U);
    Keys(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Focused(), "Tipo de pessoa") << "a new row is typed into the form";
    Keys(Qt::Key_F6);
    EXPECT_EQ(Related(), Lines{});
}

TEST_F(RelatedPages, GiveTheFormBackToWhatIsRefused)
{
    TypeOver("CEP", "12");
    Keys(Qt::Key_F6);
    Keys(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Focused(), "CEP");
    EXPECT_EQ(Reasons(), Lines{"Não é um CEP: são oito dígitos."});
}

TEST_F(RelatedPages, BelongToAnimalsTooAndToNoOtherRegister)
{
    TurnTo("Animais");
    Keys(Qt::Key_F6);
    EXPECT_EQ(Related(), Lines{"01/12/2026|09:00|Banho|Bia|Agendado|60,00"}) << "Bidu comes first";
    EXPECT_THROW(Find<QComboBox>("escolha"), std::runtime_error);
    TurnTo("Serviços");
    EXPECT_THROW(Find<screens::Tabs>("paginas"), std::runtime_error);
    Keys(Qt::Key_F6);
    EXPECT_EQ(Focused(), "Nome");
}

TEST_F(RelatedPages, TellThousandsByTheirPages)
{
    Book(1, 5000, "select date('2030-01-01', '-' || i || ' days')", 2);
    Keys(Qt::Key_Down);
    Keys(Qt::Key_F6);
    const auto& model = *Find<QTableView>("relacionados").model();
    EXPECT_EQ(model.rowCount(), 5003);
    EXPECT_EQ(model.index(0, 0).data().toString(), QStringLiteral("31/12/2029"));
    EXPECT_EQ(model.index(5002, 0).data().toString(), QStringLiteral("24/04/2016"));
}

} // namespace kova::registers::test
