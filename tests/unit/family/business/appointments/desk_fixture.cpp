#include "tests/unit/family/business/appointments/desk_fixture.hpp"

#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/numbering.hpp"
#include "family/data/rows/table_layouts.hpp"
#include "family/data/sources/shared_database.hpp"
#include "family/data/stores/appointment_rows.hpp"

namespace kova::family::test {

Value DeskUser::Get(std::string_view member)
{
    if (member == "Codigo")
        return Long(7);
    if (member == "Nome")
        return name_;
    throw Failure(FailureNumber::NoSuchMember);
}

DeskTest::DeskTest()
{
    Database& database = *SharedDatabase(host_.DataSource());
    Insert(database, PackageRow{1, 2, "2026-11-01 09:00:00", "Carla"});
    AppointmentRow row;
    row.dataInicial = row.dataFinal = "2026-11-27";
    row.codigoDoCliente = 10;
    row.codigoDoAnimal = 50;
    row.numeroDoTipoDeServico = 4;
    row.codigoDoServico = row.codigoDoFuncionario = 2;
    row.codigoDoPacote = 1;
    row.incluidoEm = "2026-11-01 09:00:00";
    row.incluidoPor = "Carla";
    for (const auto& [start, end] :
         {std::pair("09:00", "10:00"), std::pair("10:00", "11:00"), std::pair("11:00", "12:00")}) {
        row.numero = row.numero == 0 ? 21 : row.numero + 1;
        row.horaInicial = start;
        row.horaFinal = end;
        Insert(database, row);
    }
    NumberOn(database);
}

std::unique_ptr<Agenda> DeskTest::Desk(int number, int status)
{
    auto agenda = std::make_unique<Agenda>(desk_);
    agenda->Set("AtualizarSomenteOCampoSituacao", true);
    agenda->Set("SituacaoAtual", Integer(1));
    agenda->Set("SituacaoNova", static_cast<Integer>(status));
    agenda->Set("NumeroDeLancamento", static_cast<Double>(number));
    agenda->Set("DadosDoUsuario", std::make_shared<DeskUser>("Lia \"Lili\""));
    return agenda;
}

Integer DeskTest::Change(int number, int status) { return Desk(number, status)->Call("Alterar").ToInteger(); }

soci::session& DeskTest::Session() { return SharedDatabase(host_.DataSource())->Session(); }

void DeskTest::Break(const std::string& table, const std::string& event, const std::string& condition)
{
    const std::string trigger = "create trigger falha " + event + " on " + table;
    if (!TestsRunOnServer()) {
        Run(trigger + (condition.empty() ? "" : " when " + condition)
            + " begin select raise(abort, 'parada de teste'); end");
        return;
    }
    Run("create function falha() returns trigger language plpgsql as"
        " $$ begin raise exception 'parada de teste'; end $$");
    Run(trigger + " for each row " + (condition.empty() ? "" : "when (" + condition + ")")
        + " execute function falha()");
}

void DeskTest::Mend(const std::string& table)
{
    if (TestsRunOnServer())
        Run("drop trigger falha on " + table + "; drop function falha()");
    else
        Run("drop trigger falha");
}

std::vector<std::string> DeskTest::Texts(const std::string& selection)
{
    std::vector<std::string> texts;
    std::string text;
    soci::statement statement = (Session().prepare << selection, soci::into(text));
    statement.execute();
    while (statement.fetch())
        texts.push_back(text);
    return texts;
}

std::vector<std::string> DeskTest::RowsOf(const std::string& table, const std::string& condition,
                                          const std::string& left)
{
    std::string all;
    for (const Column& column : ColumnsOf(*SharedDatabase(host_.DataSource()), table.c_str())) {
        if (column.name != left)
            all += (all.empty() ? "" : " || '|' || ") + ("coalesce(cast(" + column.name + " as text), '-')");
    }
    return Texts("select " + all + " from " + table + " where " + condition);
}

int DeskTest::Count(const std::string& table)
{
    int count = 0;
    Session() << "select count(*) from " + table, soci::into(count);
    return count;
}

int DeskTest::StatusOf(int number)
{
    int status = 0;
    Session() << "select situacao from agendamento where numero = :numero", soci::into(status),
        soci::use(number);
    return status;
}

std::vector<std::string> DeskTest::Everything()
{
    std::vector<std::string> all =
        Texts("select numero || ' ' || situacao || ' ' || coalesce(alterado_em, '-') || ' '"
              " || coalesce(alterado_por, '-') from agendamento order by numero");
    for (const auto& more : {PreSales(), Audit()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

std::vector<std::string> DeskTest::PreSales()
{
    return Texts("select numero_do_agendamento || ' ' || valor_em_centavos || ' ' || situacao || ' '"
                 " || criada_em from pre_venda order by codigo");
}

std::vector<std::string> DeskTest::Audit()
{
    return Texts("select tabela || ' ' || chave || ' ' || operacao || ' ' || coalesce(antes, '-') || ' '"
                 " || coalesce(depois, '-') from auditoria order by codigo");
}

} // namespace kova::family::test
