// The registers that tell when the shop is open and who is at work.

#include "family/csv/import_of.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/registers/shop/work_columns.hpp"

#include <map>

namespace kova::family::csv {

namespace {

using family::EmployeeHoursRow;
using family::EmployeeRow;
using family::OpeningHoursRow;
using family::registers::AbsenceColumns;
using family::registers::AbsenceRecord;
using family::registers::EmployeeHoursColumns;
using family::registers::EmployeeHoursRecord;
using family::registers::OpeningHoursColumns;
namespace column = family::registers::work_columns;

/// The codes of the employees.
class Employees {
public:
    explicit Employees(family::Database& database)
    {
        family::SelectRows<EmployeeRow>(database,
                                        [this](const EmployeeRow& row) { codes_.insert(row.codigo); });
    }

    /// A code of 0 is one that could not be read, or none.
    void Require(Key code, Line& line) const
    {
        if (code != 0 && !codes_.contains(code))
            line.Refuse(column::Employee, std::to_string(code), "não há funcionário(a) com este código.");
    }

private:
    std::unordered_set<Key> codes_;
};

/// Whose day it is: the hours of one day of the week stand beside each other.
using Day = std::pair<Key, int>;
Day DayOf(const OpeningHoursRow& row) { return {0, row.diaDaSemana}; }
Day DayOf(const EmployeeHoursRow& row) { return {row.codigoDoFuncionario, row.diaDaSemana}; }

/// Hours of days of the week. Those of one day have breaks between them, or touch.
template <class Record> class HoursImport : public ImportOf<Record> {
public:
    HoursImport(family::Database& database, const Columns<Record>& columns)
        : ImportOf<Record>(database, columns), columns_(columns)
    {
        family::SelectRows<Record>(database, [this](const Record& row) { Take(row, {0, row.codigo}); });
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

    void LookUp(std::span<const Record>) override { }
    /// Hours are the same with whatever code; CheckRecord sees to it.
    std::vector<std::string> TraitsOf(const Record&) const override { return {}; }

    void WriteRecord(Record& record, const family::Author& author) override
    {
        family::AddRow(this->GetDatabase(), record, author);
    }

    void Take(const Record& record, const Place& place)
    {
        hours_[DayOf(record)].push_back({record.horaInicial, record.horaFinal, place});
    }

    const Columns<Record>& columns_;
    std::map<Day, std::vector<Hours>> hours_;
};

class OpeningHoursImport : public HoursImport<OpeningHoursRow> {
public:
    OpeningHoursImport(family::Database& database, DateTime)
        : HoursImport(database, OpeningHoursColumns()) { }
};

class EmployeeHoursImport : public HoursImport<EmployeeHoursRecord> {
public:
    EmployeeHoursImport(family::Database& database, DateTime)
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

class AbsenceImport : public ImportOf<AbsenceRecord> {
public:
    AbsenceImport(family::Database& database, DateTime)
        : ImportOf(database, AbsenceColumns()), employees_(database)
    {
    }

private:
    void LookUp(std::span<const AbsenceRecord>) override
    {
        family::SelectRows<AbsenceRecord>(GetDatabase(),
                                          [this](const AbsenceRecord& row) { AddStored(row); });
    }

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

    void WriteRecord(AbsenceRecord& record, const family::Author& author) override
    {
        family::AddRow(GetDatabase(), record, author);
    }

    Employees employees_;
};

} // namespace

const Register OpeningHoursRegister{
    "expediente",
    StartImport<OpeningHoursImport>,
    [](family::Database& database, const FieldsSink& sink) {
        ExportRows(database, OpeningHoursColumns(), sink);
    },
    OpeningHoursRow::Table,
};

const Register EmployeeHoursRegister{
    "horarios",
    StartImport<EmployeeHoursImport>,
    [](family::Database& database, const FieldsSink& sink) {
        ExportRows(database, EmployeeHoursColumns(), sink);
    },
    EmployeeHoursRow::Table,
};

const Register AbsenceRegister{
    "ausencias",
    StartImport<AbsenceImport>,
    [](family::Database& database, const FieldsSink& sink) { ExportRows(database, AbsenceColumns(), sink); },
    AbsenceRecord::Table,
};

} // namespace kova::family::csv
