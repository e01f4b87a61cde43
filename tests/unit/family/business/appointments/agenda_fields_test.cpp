#include "tests/unit/family/shop_fixture.hpp"

#include <set>

namespace kova::family::test {

class AgendaFields : public ShopTest { };

namespace {

const std::vector<std::pair<std::string, Value>>& FieldsOfAppointment2()
{
    static const std::vector<std::pair<std::string, Value>> fields = {
        {"NumeroDeLancamento", Double(2)},
        {"DataInicial", "20/11/2026"},
        {"HoraInicial", "09:30"},
        {"DataFinal", "20/11/2026"},
        {"HoraFinal", "18:00"},
        {"CodigoDoCliente", Double(10)},
        {"ApelidoOuNomeFantasiaDoCliente", "Zé"},
        {"NomeOuRazaoSocialDoCliente", "José Antônio Peçanha"},
        {"TipoDeCliente", "PF"},
        {"EnderecoCompletoComCEP", "Rua do Ipê, 110 - Vale Sereno/SP - CEP 00123-456"},
        {"TiposECanaisDeComunicacao", "Celular: (00) 91234-5678; E-mail: ze@example.com"},
        {"CodigoDoAnimal", Long(50)},
        {"NomeDoAnimal", "Paçoca"},
        {"SexoDoAnimal", "Fêmea"},
        {"CodigoDaEspecie", Long(1)},
        {"NomeDaEspecie", "Canina"},
        {"CodigoDaRaca", Long(1)},
        {"NomeDaRaca", "Poodle"},
        {"PorteDoAnimal", "Médio"},
        {"CorDoAnimal", "Caramelo"},
        {"ObservacaoDoAnimal", "Tem medo de secador."},
        {"NumeroDoTipoDeServico", Long(4)},
        {"NomeDoTipoDeServico", "Banho e tosa"},
        {"CodigoDoServico", Double(2)},
        {"NomeDoServico", "Banho"},
        {"TempoDeExecucao", "01:15"},
        {"CodigoDoFuncionario", Long(2)},
        {"ApelidoDoFuncionario", "Bia"},
        {"NomeDoFuncionario", "Beatriz"},
        {"Observacao", "Laço azul."},
        {"TransporteBuscar", "Não"},
        {"TransporteLevar", "Não"},
        {"Situacao", Long(1)},
        {"DataEHoraDaInclusao", "01/11/2026 09:05:07"},
        {"UsuarioDaInclusao", "Carla"},
        {"DataEHoraDaAlteracao", "02/11/2026 10:00:00"},
        {"UsuarioDaAlteracao", "Marcos"},
    };
    return fields;
}

} // namespace

TEST_F(AgendaFields, StandInTheirOrderWithTheirTypes)
{
    const RecordSetRef records = Appointment(2);
    const auto& expected = FieldsOfAppointment2();
    ASSERT_EQ(records->FieldCount(), 37);
    ASSERT_EQ(expected.size(), 37U);
    for (int field = 0; field < 37; ++field) {
        const auto& [name, value] = expected[static_cast<std::size_t>(field)];
        EXPECT_EQ(records->FieldName(field), name);
        EXPECT_EQ(records->Field(name), value) << name << " is " << NameOf(records->Field(name).GetType());
    }
}

TEST_F(AgendaFields, OfASimplifiedAppointmentAreTheTypedTexts)
{
    const RecordSetRef records = Appointment(4);
    const std::pair<const char*, Value> expected[] = {
        {"CodigoDoCliente", ""},
        {"CodigoDoAnimal", ""},
        {"NomeOuRazaoSocialDoCliente", "Íris Conceição"},
        {"TiposECanaisDeComunicacao", "(00) 90000-0001"},
        {"EnderecoCompletoComCEP", ""},
        {"NomeDoAnimal", "Bidu"},
        {"SexoDoAnimal", "Macho"},
        {"CodigoDaEspecie", Long(0)},
        {"NomeDaEspecie", "Felina"},
        {"NomeDaRaca", "Siamês"},
        {"CorDoAnimal", "Creme"},
        {"PorteDoAnimal", ""},
        {"ObservacaoDoAnimal", Null()},
    };
    for (const auto& [name, value] : expected)
        EXPECT_EQ(records->Field(name), value) << name;
}

TEST_F(AgendaFields, OfTransportReadYesOrNo)
{
    EXPECT_EQ(Appointment(6)->Field("TransporteBuscar"), Value("Sim"));
    EXPECT_EQ(Appointment(6)->Field("TransporteLevar"), Value("Não"));
}

TEST_F(AgendaFields, AreNullOnlyWhereTheScreensTestForIt)
{
    const std::set<std::string> mayBeNull = {"ObservacaoDoAnimal", "Observacao", "DataEHoraDaAlteracao",
                                             "UsuarioDaAlteracao"};
    std::set<std::string> wasNull;
    for (int number = 1; number <= 8; ++number) {
        const RecordSetRef records = Appointment(number);
        for (int field = 0; field < records->FieldCount(); ++field) {
            EXPECT_FALSE(records->Field(field).IsEmpty());
            if (records->Field(field).IsNull())
                wasNull.insert(records->FieldName(field));
        }
    }
    EXPECT_EQ(wasNull, mayBeNull);
}

TEST_F(AgendaFields, OfANullRemarkDoNotKeepTheRowBefore)
{
    EXPECT_EQ(Appointment(2)->Field("Observacao"), Value("Laço azul."));
    EXPECT_TRUE(Appointment(3)->Field("Observacao").IsNull());
}

} // namespace kova::family::test
