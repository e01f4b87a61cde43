#include "family/data/stores/appointment_status.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/audit/stamp.hpp"
#include "family/data/engine/database.hpp"

namespace kova::family {

namespace {

constexpr const char* Columns =
    "select a.numero, a.situacao, a.numero_do_tipo_de_servico, a.codigo_do_cliente, a.codigo_do_pacote,"
    " s.preco_em_centavos, a.alterado_em, a.alterado_por, a.versao, a.codigo_do_funcionario,"
    " a.data_inicial, a.hora_inicial, a.data_final, a.hora_final"
    " from agendamento a join servico s on s.codigo = a.codigo_do_servico";

/// The appointment alone is locked, not its service.
std::string LockOfAppointment(const Dialect& dialect)
{
    return dialect.lockRow.empty() ? "" : dialect.lockRow + " of a";
}

class StateSelection : public KeptStatement {
public:
    /// Walks to the end, so that no read stays open behind it.
    std::vector<AppointmentState> Run(Key key)
    {
        key_ = key;
        std::vector<AppointmentState> rows;
        statement_.execute();
        while (statement_.fetch())
            rows.push_back(row_);
        return rows;
    }

protected:
    StateSelection(Database& database, const char* conditions)
        : statement_((database.Session().prepare
                          << Columns + std::string(conditions) + LockOfAppointment(database.GetDialect()),
                      soci::into(row_.number), soci::into(row_.status), soci::into(row_.serviceType),
                      soci::into(row_.customer.value, row_.customer.state),
                      soci::into(row_.package.value, row_.package.state), soci::into(row_.priceInCents),
                      soci::into(row_.changedAt.value, row_.changedAt.state),
                      soci::into(row_.changedBy.value, row_.changedBy.state), soci::into(row_.version),
                      soci::into(row_.employee), soci::into(row_.startDate), soci::into(row_.startTime),
                      soci::into(row_.endDate), soci::into(row_.endTime), soci::use(key_, "chave")))
    {
    }

private:
    Key key_ = 0;
    AppointmentState row_;
    soci::statement statement_;
};

struct StateOfOne : StateSelection {
    explicit StateOfOne(Database& database) : StateSelection(database, " where a.numero = :chave") { }
};

struct StatesOfPackage : StateSelection {
    explicit StatesOfPackage(Database& database)
        : StateSelection(database,
                         " where a.codigo_do_pacote = :chave and a.situacao in (1, 3)"
                         " and not exists (select 1 from pre_venda p"
                         " where p.numero_do_agendamento = a.numero and p.situacao = 3)"
                         " order by a.data_inicial, a.hora_inicial, a.numero")
    {
    }
};

class StatusUpdate : public KeptStatement {
public:
    explicit StatusUpdate(Database& database)
        : statement_((database.Session().prepare
                          << "update agendamento set situacao = :situacao, alterado_em = :momento,"
                             " alterado_por = :nome, versao = :versao where numero = :numero",
                      soci::use(status_, "situacao"), soci::use(moment_, "momento"), soci::use(name_, "nome"),
                      soci::use(version_, "versao"), soci::use(number_, "numero")))
    {
    }

    void Run(const AppointmentState& appointment, int status, const std::string& moment,
             const std::string& name)
    {
        number_ = appointment.number;
        version_ = appointment.version + 1;
        status_ = status;
        moment_ = moment;
        name_ = name;
        statement_.execute(true);
    }

private:
    Key number_ = 0, version_ = 0;
    int status_ = 0;
    std::string moment_, name_;
    soci::statement statement_;
};

template <class Selection> std::vector<AppointmentState> Run(Database& database, Key key)
{
    return database.With<Selection>([&](Selection& selection) { return selection.Run(key); });
}

} // namespace

std::optional<AppointmentState> FindAppointment(Database& database, Key number)
{
    const std::vector<AppointmentState> found = Run<StateOfOne>(database, number);
    return found.empty() ? std::nullopt : std::optional(found.front());
}

std::vector<AppointmentState> FindUnattendedOfPackage(Database& database, Key package)
{
    return Run<StatesOfPackage>(database, package);
}

void WriteStatus(Database& database, const AppointmentState& appointment, int status, const Author& author)
{
    const std::string moment = StampOfRow(database, author);
    database.With<StatusUpdate>(
        [&](StatusUpdate& update) { update.Run(appointment, status, moment, author.name); });
    AuditValues before, after;
    before.Add("situacao", appointment.status)
        .Add("alterado_em", appointment.changedAt)
        .Add("alterado_por", appointment.changedBy)
        .Add("versao", appointment.version);
    after.Add("situacao", status)
        .Add("alterado_em", moment)
        .Add("alterado_por", author.name)
        .Add("versao", appointment.version + 1);
    AuditChange(database, author, "agendamento", appointment.number, before, after);
}

} // namespace kova::family
