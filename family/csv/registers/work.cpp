// The registers that tell when the shop is open and who is at work.

#include "family/csv/import_of_rows.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/registers/shop/work_columns.hpp"

#include <map>

namespace kova::family::csv {

namespace {

using registers::AbsenceColumns;
using registers::AbsenceRecord;
using registers::EmployeeHoursColumns;
using registers::EmployeeHoursRecord;
using registers::OpeningHoursColumns;
namespace column = registers::work_columns;

/// The codes of the employees.
class Employees {
public:
    explicit Employees(Database& database) : codes_(AllCodes<EmployeeRow>(database)) { }

    /// A code of 0 is one that could not be read, or none.
    void Require(Key code, Line& line) const
    {
        if (code != 0 && !codes_.contains(code))
            line.Refuse(column::Employee, std::to_string(code), "não há funcionário(a) com este código.");
    }

private:
    const std::unordered_set<Key> codes_;
};

/// Whose day it is: the hours of one day of the week stand beside each other.
using Day = std::pair<Key, int>;
Day DayOf(const OpeningHoursRow& row) { return {0, row.diaDaSemana}; }
Day DayOf(const EmployeeHoursRow& row) { return {row.codigoDoFuncionario, row.diaDaSemana}; }

/// Hours of days of the week. Those of one day have breaks between them, or touch.
template <class Record> class HoursImport : public ImportOfRows<Record> {
public:
    HoursImport(Database& database, const Columns<Record>& columns)
        : ImportOfRows<Record>(database, columns), columns_(columns)
    {
        SelectRows<Record>(database, [this](const Record& row) { Take(row, {0, row.codigo}); });
    }

    void Replace(Key key, const std::vector<std::string>& texts) override
    {
        for (auto& [day, hours] : hours_)
            std::erase_if(hours, [&](const Hours& one) { return one.place.code == key; });
        Record record;
        for (std::size_t at = 0; at < texts.size(); ++at) {
            if (!texts[at].empty())
                columns_[at].read(texts[at], record);
        }
        Take(record, {0, key});
    }

protected:
    void CheckRecord(Record& record, Line& line) override
    {
        if (record.diaDaSemana == 0 || record.horaInicial.empty() || record.horaFinal.empty())
            return;
        if (record.horaFinal <= record.horaInicial)
            return line.Refuse(column::UntilTime, record.horaFinal, "deve ser depois da hora inicial.");
        for (const Hours& other : hours_[DayOf(record)]) {
            const bool isSame = other.from == record.horaInicial && other.until == record.horaFinal;
            if (isSame && this->LeavesOut(other.place, line))
                return;
            if (isSame)
                return line.Refuse(column::FromTime, record.horaInicial,
                                   "este horário " + other.place.Told() + ".");
            if (other.from < record.horaFinal && record.horaInicial < other.until)
                return line.Refuse(column::FromTime, record.horaInicial,
                                   "o horário das " + other.from + " às " + other.until + " desse dia "
                                       + other.place.Told() + ", e os dois se cruzam.");
        }
        Take(record, {line.Number(), 0});
    }

private:
    struct Hours {
        std::string from, until;
        Place place;
    };

    void Take(const Record& record, const Place& place)
    {
        hours_[DayOf(record)].push_back({record.horaInicial, record.horaFinal, place});
    }

    const Columns<Record>& columns_;
    std::map<Day, std::vector<Hours>> hours_;
};

class OpeningHoursImport : public HoursImport<OpeningHoursRow> {
public:
    OpeningHoursImport(Database& database, DateTime) : HoursImport(database, OpeningHoursColumns()) { }
};

class EmployeeHoursImport : public HoursImport<EmployeeHoursRecord> {
public:
    EmployeeHoursImport(Database& database, DateTime)
        : HoursImport(database, EmployeeHoursColumns()), employees_(database)
    {
    }

private:
    void CheckRecord(EmployeeHoursRecord& record, Line& line) override
    {
        employees_.Require(record.codigoDoFuncionario, line);
        HoursImport::CheckRecord(record, line);
    }

    Employees employees_;
};

class AbsenceImport : public ImportOfRows<AbsenceRecord> {
public:
    AbsenceImport(Database& database, DateTime)
        : ImportOfRows(database, AbsenceColumns()), employees_(database)
    {
    }

private:
    /// Whose it is, and from when until when.
    std::vector<std::string> TraitsOf(const AbsenceRecord& record) const override
    {
        return {std::to_string(record.codigoDoFuncionario.ValueOr(0)) + "\n" + record.dataInicial + " "
                + record.horaInicial + "\n" + record.dataFinal + " " + record.horaFinal};
    }

    void CheckRecord(AbsenceRecord& record, Line& line) override
    {
        employees_.Require(record.codigoDoFuncionario.ValueOr(0), line);
        if (record.dataInicial.empty() || record.dataFinal.empty())
            return;
        if (record.dataFinal < record.dataInicial)
            return line.Refuse(column::UntilDate, "não pode ser antes da data inicial.");
        const bool hasTimes = !record.horaInicial.empty() && !record.horaFinal.empty();
        if (hasTimes && record.dataFinal == record.dataInicial && record.horaFinal <= record.horaInicial)
            line.Refuse(column::UntilTime, record.horaFinal,
                        "deve ser depois da hora inicial, que é do mesmo dia.");
    }

    Employees employees_;
};

} // namespace

constinit const Register OpeningHoursRegister =
    RegisterOfRows<OpeningHoursImport, OpeningHoursColumns>("expediente");

constinit const Register EmployeeHoursRegister =
    RegisterOfRows<EmployeeHoursImport, EmployeeHoursColumns>("horarios");

constinit const Register AbsenceRegister = RegisterOfRows<AbsenceImport, AbsenceColumns>("ausencias");

} // namespace kova::family::csv
