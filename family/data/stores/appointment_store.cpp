#include "family/data/stores/appointment_store.hpp"

#include "family/data/audit/audit.hpp"
#include "family/data/audit/stamp.hpp"
#include "family/data/engine/database.hpp"
#include "family/data/rows/insert_new_row.hpp"
#include "family/data/rows/insert_row.hpp"
#include "family/data/rows/update_row.hpp"

namespace kova::family {

namespace {

class AppointmentDeletion : public KeptStatement {
public:
    explicit AppointmentDeletion(Database& database)
        : statement_((database.Session().prepare << "delete from agendamento where numero = :numero",
                      soci::use(number_, "numero")))
    {
    }

    void Run(Key number)
    {
        number_ = number;
        statement_.execute(true);
    }

private:
    Key number_ = 0;
    soci::statement statement_;
};

/// They tell whose an appointment is, together.
constexpr std::string_view WhoseItIs[] = {"tipo_do_agendamento", "codigo_do_cliente", "nome_do_cliente",
                                          "canais_do_cliente", "nome_do_animal"};

} // namespace

Key AddAppointment(Database& database, AppointmentRow row, const Author& author)
{
    row.incluidoEm = StampOfRow(database, author);
    row.incluidoPor = author.name;
    row.Compose();
    row.numero = InsertNew(database, row);
    AuditInsertion(database, author, AppointmentRow::Table, row.numero, ValuesOf(row));
    return row.numero;
}

void ReplaceAppointment(Database& database, const AppointmentRow& before, AppointmentRow after,
                        const Author& author)
{
    after.incluidoEm = before.incluidoEm;
    after.incluidoPor = before.incluidoPor;
    after.alteradoEm = StampOfRow(database, author);
    after.alteradoPor = author.name;
    after.versao = before.versao + 1;
    after.Compose();
    Update(database, after);
    AuditChange(database, author, AppointmentRow::Table, before.numero, ValuesOf(before), ValuesOf(after),
                WhoseItIs);
}

void RemoveAppointment(Database& database, const AppointmentRow& row, const Author& author)
{
    database.With<AppointmentDeletion>([&](AppointmentDeletion& deletion) { deletion.Run(row.numero); });
    AuditRemoval(database, author, AppointmentRow::Table, row.numero, ValuesOf(row));
}

void RestoreRow(Database& database, AppointmentRow row, const Author& author)
{
    ++row.versao;
    Insert(database, row);
    AuditRestoration(database, author, AppointmentRow::Table, row.numero, ValuesOf(row));
}

Key AddPackage(Database& database, Key service, const Author& author)
{
    PackageRow package{0, service, StampOfRow(database, author), author.name};
    package.codigo = InsertNew(database, package);
    AuditInsertion(database, author, PackageRow::Table, package.codigo, ValuesOf(package));
    return package.codigo;
}

} // namespace kova::family
