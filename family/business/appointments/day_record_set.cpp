#include "family/business/appointments/day_record_set.hpp"

#include "family/business/kept_record_set.hpp"
#include "family/business/shown_values.hpp"
#include "family/data/engine/iso_text.hpp"

#include <algorithm>

namespace kova::family {

namespace {

/// A code travels as a Double where it can outgrow a Long.
Value Code(long long code) { return static_cast<Double>(code); }
Value SmallCode(long long code) { return static_cast<Long>(code); }

Value TextOrNull(const Nullable<std::string_view>& text)
{
    return text.IsNull() ? Value(Null()) : Value(text.value);
}

/// A simplified appointment has no code, which reads as an empty text.
Value CodeOrNothing(const Nullable<long long>& code, Value (*make)(long long))
{
    return code.IsNull() ? Value("") : make(code.value);
}

Value MomentOrNull(const Nullable<std::string_view>& moment)
{
    return moment.IsNull() ? Value(Null()) : Value(ShownMoment(moment.value));
}

constexpr KeptField<DayRowOf> Fields[] = {
    {"NumeroDeLancamento", [](const DayRow& row) { return Code(row.numeroDeLancamento); }},
    {"DataInicial", [](const DayRow& row) { return Value(ShownDate(row.dataInicial)); }},
    {"HoraInicial", [](const DayRow& row) { return Value(row.horaInicial); }},
    {"DataFinal", [](const DayRow& row) { return Value(ShownDate(row.dataFinal)); }},
    {"HoraFinal", [](const DayRow& row) { return Value(row.horaFinal); }},
    {"CodigoDoCliente", [](const DayRow& row) { return CodeOrNothing(row.codigoDoCliente, Code); }},
    {"ApelidoOuNomeFantasiaDoCliente", [](const DayRow& row) { return Value(row.apelidoDoCliente); }},
    {"NomeOuRazaoSocialDoCliente", [](const DayRow& row) { return Value(row.nomeDoCliente); }},
    {"TipoDeCliente", [](const DayRow& row) { return Value(row.tipoDeCliente); }},
    {"EnderecoCompletoComCEP", [](const DayRow& row) { return Value(row.enderecoCompletoComCEP); }},
    {"TiposECanaisDeComunicacao", [](const DayRow& row) { return Value(row.tiposECanais); }},
    {"CodigoDoAnimal", [](const DayRow& row) { return CodeOrNothing(row.codigoDoAnimal, SmallCode); }},
    {"NomeDoAnimal", [](const DayRow& row) { return Value(row.nomeDoAnimal); }},
    {"SexoDoAnimal", [](const DayRow& row) { return Value(ShownSex(row.sexoDoAnimal)); }},
    {"CodigoDaEspecie", [](const DayRow& row) { return SmallCode(row.codigoDaEspecie); }},
    {"NomeDaEspecie", [](const DayRow& row) { return Value(row.nomeDaEspecie); }},
    {"CodigoDaRaca", [](const DayRow& row) { return SmallCode(row.codigoDaRaca); }},
    {"NomeDaRaca", [](const DayRow& row) { return Value(row.nomeDaRaca); }},
    {"PorteDoAnimal", [](const DayRow& row) { return Value(ShownSize(row.porteDoAnimal)); }},
    {"CorDoAnimal", [](const DayRow& row) { return Value(row.corDoAnimal); }},
    {"ObservacaoDoAnimal", [](const DayRow& row) { return TextOrNull(row.observacaoDoAnimal); }},
    {"NumeroDoTipoDeServico", [](const DayRow& row) { return SmallCode(row.numeroDoTipoDeServico); }},
    {"NomeDoTipoDeServico", [](const DayRow& row) { return Value(row.nomeDoTipoDeServico); }},
    {"CodigoDoServico", [](const DayRow& row) { return Code(row.codigoDoServico); }},
    {"NomeDoServico", [](const DayRow& row) { return Value(row.nomeDoServico); }},
    {"TempoDeExecucao", [](const DayRow& row) { return Value(ShownDuration(row.duracaoEmMinutos)); }},
    {"CodigoDoFuncionario", [](const DayRow& row) { return SmallCode(row.codigoDoFuncionario); }},
    {"ApelidoDoFuncionario", [](const DayRow& row) { return Value(row.apelidoDoFuncionario); }},
    {"NomeDoFuncionario", [](const DayRow& row) { return Value(row.nomeDoFuncionario); }},
    {"Observacao", [](const DayRow& row) { return TextOrNull(row.observacao); }},
    {"TransporteBuscar", [](const DayRow& row) { return Value(YesOrNo(row.transporteBuscar != 0)); }},
    {"TransporteLevar", [](const DayRow& row) { return Value(YesOrNo(row.transporteLevar != 0)); }},
    {"Situacao", [](const DayRow& row) { return SmallCode(row.situacao); }},
    {"DataEHoraDaInclusao", [](const DayRow& row) { return Value(ShownMoment(row.incluidoEm)); }},
    {"UsuarioDaInclusao", [](const DayRow& row) { return Value(row.incluidoPor); }},
    {"DataEHoraDaAlteracao", [](const DayRow& row) { return MomentOrNull(row.alteradoEm); }},
    {"UsuarioDaAlteracao", [](const DayRow& row) { return TextOrNull(row.alteradoPor); }},
};

/// The list keeps its page number when a filter or another day leaves fewer pages: it then stands on the last
/// one. Its bar goes on counting from the kept number, so that it leads to pages before the first.
class DayOfAppointments : public KeptRecordSet<DayRowOf> {
public:
    using KeptRecordSet::AbsolutePage;
    using KeptRecordSet::KeptRecordSet;

    void AbsolutePage(Long page) override
    {
        KeptRecordSet::AbsolutePage(RecordCount() == 0 ? page : std::clamp(page, Long{1}, PageCount()));
    }
};

} // namespace

std::shared_ptr<PagedRecordSet> DayRecordSet(DayRows day)
{
    return std::make_shared<DayOfAppointments>(Fields, std::move(day));
}

} // namespace kova::family
