#include "tests/conformance/business/suite.hpp"

#include <set>

namespace kova::conformance {

namespace {

using Type = ValueType;

struct Column {
    const char* name;
    ValueType type;
    /// What else it may hold: nothing, Null, or the empty text of a simplified appointment.
    ValueType also;
};

constexpr Column Columns[] = {
    {"NumeroDeLancamento", Type::Double, Type::Double},
    {"DataInicial", Type::Text, Type::Text},
    {"HoraInicial", Type::Text, Type::Text},
    {"DataFinal", Type::Text, Type::Text},
    {"HoraFinal", Type::Text, Type::Text},
    {"CodigoDoCliente", Type::Double, Type::Text},
    {"ApelidoOuNomeFantasiaDoCliente", Type::Text, Type::Text},
    {"NomeOuRazaoSocialDoCliente", Type::Text, Type::Text},
    {"TipoDeCliente", Type::Text, Type::Text},
    {"EnderecoCompletoComCEP", Type::Text, Type::Text},
    {"TiposECanaisDeComunicacao", Type::Text, Type::Text},
    {"CodigoDoAnimal", Type::Long, Type::Text},
    {"NomeDoAnimal", Type::Text, Type::Text},
    {"SexoDoAnimal", Type::Text, Type::Text},
    {"CodigoDaEspecie", Type::Long, Type::Long},
    {"NomeDaEspecie", Type::Text, Type::Text},
    {"CodigoDaRaca", Type::Long, Type::Long},
    {"NomeDaRaca", Type::Text, Type::Text},
    {"PorteDoAnimal", Type::Text, Type::Text},
    {"CorDoAnimal", Type::Text, Type::Text},
    {"ObservacaoDoAnimal", Type::Text, Type::Null},
    {"NumeroDoTipoDeServico", Type::Long, Type::Long},
    {"NomeDoTipoDeServico", Type::Text, Type::Text},
    {"CodigoDoServico", Type::Double, Type::Double},
    {"NomeDoServico", Type::Text, Type::Text},
    {"TempoDeExecucao", Type::Text, Type::Text},
    {"CodigoDoFuncionario", Type::Long, Type::Long},
    {"ApelidoDoFuncionario", Type::Text, Type::Text},
    {"NomeDoFuncionario", Type::Text, Type::Text},
    {"Observacao", Type::Text, Type::Null},
    {"TransporteBuscar", Type::Text, Type::Text},
    {"TransporteLevar", Type::Text, Type::Text},
    {"Situacao", Type::Long, Type::Long},
    {"DataEHoraDaInclusao", Type::Text, Type::Text},
    {"UsuarioDaInclusao", Type::Text, Type::Text},
    {"DataEHoraDaAlteracao", Type::Text, Type::Null},
    {"UsuarioDaAlteracao", Type::Text, Type::Null},
};

} // namespace

class AppointmentFields : public BusinessTest {
protected:
    RecordSetRef day_ = Selected({}, WholeDay());

    void GoTo(int number)
    {
        for (day_->MoveFirst(); day_->Field("NumeroDeLancamento").ToLong() != number;)
            day_->MoveNext();
    }
};
KOVA_OVER_EVERY_ENGINE(AppointmentFields);

TEST_P(AppointmentFields, StandInTheirOrder)
{
    ASSERT_EQ(day_->FieldCount(), 37);
    ASSERT_EQ(std::size(Columns), 37U);
    for (int field = 0; field < 37; ++field)
        EXPECT_EQ(day_->FieldName(field), Columns[field].name);
}

TEST_P(AppointmentFields, HoldTheirTypesInEveryRow)
{
    for (; !day_->Eof(); day_->MoveNext())
        for (const Column& column : Columns) {
            const ValueType type = day_->Field(column.name).GetType();
            EXPECT_TRUE(type == column.type || type == column.also)
                << column.name << " of " << day_->Field(0).ToText() << " is " << NameOf(type);
        }
}

TEST_P(AppointmentFields, HoldWhatTheShopHolds) { ExpectSame(ContentOf(*day_), AppointmentRows(WholeDay())); }

TEST_P(AppointmentFields, AreNullInTheFourColumnsThatTheScreensTest)
{
    std::set<std::string> null;
    for (; !day_->Eof(); day_->MoveNext())
        for (int field = 0; field < day_->FieldCount(); ++field)
            if (day_->Field(field).IsNull())
                null.insert(day_->FieldName(field));
    EXPECT_EQ(null,
              (std::set<std::string>{"ObservacaoDoAnimal", "Observacao", "DataEHoraDaAlteracao",
                                     "UsuarioDaAlteracao"}));
}

TEST_P(AppointmentFields, ThatAreNullCannotBeReadAsText)
{
    GoTo(1);
    EXPECT_EQ(NumberOfFailure([&] { day_->Field("Observacao").ToText(); }), 94);
    GoTo(7);
    EXPECT_EQ(day_->Field("Observacao"), Value(""));
}

TEST_P(AppointmentFields, OfASimplifiedOneHaveNoCodesAndTheTypedTexts)
{
    GoTo(4);
    EXPECT_EQ(day_->Field("CodigoDoCliente"), Value(""));
    EXPECT_EQ(day_->Field("CodigoDoAnimal"), Value(""));
    EXPECT_EQ(day_->Field("NomeOuRazaoSocialDoCliente"), Value(WalkIn::Name));
    EXPECT_EQ(day_->Field("TiposECanaisDeComunicacao"), Value(WalkIn::Channels));
    EXPECT_EQ(day_->Field("NomeDoAnimal"), Value(WalkIn::Animal));
    EXPECT_EQ(day_->Field("SexoDoAnimal"), Value("Macho"));
    EXPECT_EQ(day_->Field("NomeDaEspecie"), Value(WalkIn::Species));
}

TEST_P(AppointmentFields, CoverEveryStatus)
{
    std::set<Long> statuses;
    for (; !day_->Eof(); day_->MoveNext())
        statuses.insert(day_->Field("Situacao").ToLong());
    EXPECT_EQ(statuses, (std::set<Long>{1, 2, 3, 4}));
}

} // namespace kova::conformance
