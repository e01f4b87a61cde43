#include "waiting/waiting_words.hpp"

#include "family/data/engine/iso_text.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/rows/rows.hpp"
#include "family/waiting/waiting_writes.hpp"

#include <QDate>
#include <QLocale>

namespace kova::waiting {

namespace {

using family::FindByKey;

QString Of(const std::string& text) { return QString::fromStdString(text); }

/// "a, b e c".
QString Listed(const QStringList& words)
{
    if (words.size() < 2)
        return words.join(QString());
    return words.mid(0, words.size() - 1).join(QStringLiteral(", ")) + QStringLiteral(" e ") + words.last();
}

QString DayOf(const std::string& iso) { return Of(FormatDate(family::ReadIsoMoment(iso, "00:00").date)); }

std::string NameOfService(family::Database& database, family::Key code)
{
    const auto service = FindByKey<family::ServiceRow>(database, code);
    return service ? service->nome : std::to_string(code);
}

std::string NameOfEmployee(family::Database& database, family::Key code)
{
    const auto employee = FindByKey<family::EmployeeRow>(database, code);
    if (!employee)
        return std::to_string(code);
    return employee->apelido.empty() ? employee->nome : employee->apelido;
}

std::string NameOfCustomer(family::Database& database, family::Key code)
{
    const auto customer = FindByKey<family::CustomerRow>(database, code);
    return customer ? customer->nome : std::to_string(code);
}

std::string NameOfAnimal(family::Database& database, family::Key code)
{
    const auto animal = FindByKey<family::AnimalRow>(database, code);
    return animal ? animal->nome : std::to_string(code);
}

} // namespace

QStringList ColumnsOfWaiting(bool withPlace)
{
    QStringList columns{QStringLiteral("Desde"),     QStringLiteral("Cliente"),
                        QStringLiteral("Animal"),    QStringLiteral("Serviços"),
                        QStringLiteral("Com quem"),  QStringLiteral("Quando serve"),
                        QStringLiteral("Observação")};
    if (withPlace)
        columns.insert(1, QStringLiteral("Horário que vagou"));
    return columns;
}

QString TextOfWeekdays(const std::string& digits)
{
    static const char* const Days[] = {"dom", "seg", "ter", "qua", "qui", "sex", "sáb"};
    constexpr std::size_t DaysOfWeek = 7;
    if (digits.size() == DaysOfWeek)
        return QStringLiteral("todos os dias");
    QStringList names;
    for (const char digit : digits)
        names.append(QString::fromUtf8(Days[digit - '1']));
    return Listed(names);
}

QStringList CellsOf(family::Database& database, const family::WaitingEntry& entry, const DateTime& now)
{
    QStringList services, employees;
    for (const family::Key code : entry.services)
        services.append(Of(NameOfService(database, code)));
    for (const family::Key code : entry.employees)
        employees.append(Of(NameOfEmployee(database, code)));
    const family::WaitingRow& row = entry.row;
    QString remark = Of(row.observacao.ValueOr(""));
    if (family::waiting::IsInHand(row, family::IsoMoment(now)))
        remark = QStringLiteral("(outro posto está marcando) ") + remark;
    constexpr std::size_t LengthOfDate = 10;
    return {DayOf(row.incluidoEm.substr(0, LengthOfDate)),
            Of(NameOfCustomer(database, row.codigoDoCliente)),
            Of(NameOfAnimal(database, row.codigoDoAnimal)),
            Listed(services),
            employees.isEmpty() ? QStringLiteral("qualquer um") : Listed(employees),
            QStringLiteral("%1 a %2, %3, das %4 às %5")
                .arg(DayOf(row.dataInicial), DayOf(row.dataFinal), TextOfWeekdays(row.diasDaSemana),
                     Of(row.horaInicial), Of(row.horaFinal)),
            remark};
}

QString TextOfPlace(family::Database& database, const family::waiting::WaitingFit& fit)
{
    const Date day = fit.place.span.start.date;
    return QStringLiteral("%1, das %2 às %3, com %4 (%5)")
        .arg(QLocale(QLocale::Portuguese, QLocale::Brazil)
                 .toString(QDate(day.year, day.month, day.day), QStringLiteral("ddd dd/MM/yyyy")),
             Of(FormatTime(fit.place.span.start.time)), Of(FormatTime(fit.place.span.end.time)),
             Of(fit.place.nickname), Of(NameOfService(database, fit.service)));
}

QString WhoWaits(family::Database& database, const family::WaitingEntry& entry)
{
    return Of(NameOfAnimal(database, entry.row.codigoDoAnimal)) + QStringLiteral(", de ")
        + Of(NameOfCustomer(database, entry.row.codigoDoCliente));
}

} // namespace kova::waiting
