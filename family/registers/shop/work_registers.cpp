#include "family/registers/shop/work_registers.hpp"

#include "family/data/engine/iso_text.hpp"
#include "family/data/stores/national_holidays.hpp"
#include "family/registers/description/register_of.hpp"
#include "family/registers/shop/booked_in_span.hpp"
#include "family/registers/shop/usual_days.hpp"
#include "family/registers/shop/work_columns.hpp"

namespace kova::family::registers {

namespace {

namespace column = work_columns;

using Nicknames = std::unordered_map<Key, std::string>;

Nicknames AllNicknames(Database& database)
{
    Nicknames nicknames;
    for (const EmployeeRow& row : AllOf<EmployeeRow>(database))
        nicknames[row.codigo] = row.apelido;
    return nicknames;
}

/// The active ones by their nicknames.
std::vector<Offer> OfferedEmployees(Database& database)
{
    std::vector<EmployeeRow> all = AllOf<EmployeeRow>(database);
    std::ranges::sort(all, {}, [](const EmployeeRow& row) { return FoldText(row.apelido); });
    std::vector<Offer> offers;
    for (const EmployeeRow& row : all) {
        const std::string code = std::to_string(row.codigo);
        if (row.situacao == 1)
            offers.push_back({code, code + " - " + row.apelido});
    }
    return offers;
}

/// Looks for an employee who is chosen anew; 0 is none.
void CheckEmployee(Database& database, Key former, Key chosen, Refusals& refusals)
{
    if (chosen != 0 && chosen != former && !FindByKey<EmployeeRow>(database, chosen))
        refusals.Add(column::Employee, "não há funcionário(a) com este código.");
}

/// The columns of a list that shows first whom a row is about.
template <class Record>
std::vector<ShownColumn<Record>> Of(std::string (*employee)(const Record&),
                                    std::vector<ShownColumn<Record>> others)
{
    others.insert(others.begin(), ShownColumn<Record>{{"Funcionário", false}, employee});
    return others;
}

bool AreOfOneDay(const OpeningHoursRow& one, const OpeningHoursRow& other)
{
    return one.diaDaSemana == other.diaDaSemana;
}

bool AreOfOneDay(const EmployeeHoursRow& one, const EmployeeHoursRow& other)
{
    return one.codigoDoFuncionario == other.codigoDoFuncionario && one.diaDaSemana == other.diaDaSemana;
}

/// Hours of days of the week. Those of one day have breaks between them, or touch.
template <class Record> class WeekRegister : public RegisterOf<Record> {
protected:
    using RegisterOf<Record>::RegisterOf;

    void CheckHours(const Among& among, const Record* stored, const Record& record, Refusals& refusals) const
    {
        if (record.diaDaSemana == 0 || record.horaInicial.empty() || record.horaFinal.empty())
            return;
        if (record.horaFinal <= record.horaInicial)
            return refusals.Add(column::UntilTime, "deve ser depois da hora inicial.");
        if (stored && AreOfOneDay(*stored, record) && AreSame(*stored, record))
            return;
        for (const Record& other : this->AllRows(among)) {
            if (this->KeyIn(other) == this->KeyIn(record) || !AreOfOneDay(other, record))
                continue;
            if (AreSame(other, record))
                return refusals.Add(column::FromTime, "este horário já está cadastrado.");
            if (other.horaInicial < record.horaFinal && record.horaInicial < other.horaFinal)
                return refusals.Add(column::FromTime,
                                    "há outro horário nesse dia, das " + other.horaInicial + " às "
                                        + other.horaFinal + ", e os dois se cruzam.");
        }
    }

    static std::string OrderInWeek(const Record& record)
    {
        return std::to_string(record.diaDaSemana) + record.horaInicial;
    }

private:
    static bool AreSame(const Record& one, const Record& other)
    {
        return one.horaInicial == other.horaInicial && one.horaFinal == other.horaFinal;
    }
};

class OpeningHours : public WeekRegister<OpeningHoursRow> {
public:
    OpeningHours()
        : WeekRegister(
            {"expediente", "Expediente", "horário do expediente"}, OpeningHoursColumns(),
            ShownColumns(OpeningHoursColumns(), {column::Day, column::FromTime, column::UntilTime, "Código"}))
    {
    }

private:
    void CheckRecord(const Among& among, const OpeningHoursRow* stored, OpeningHoursRow& record,
                     Refusals& refusals) const override
    {
        CheckHours(among, stored, record, refusals);
    }

    std::string WhyKept(Database& database, const OpeningHoursRow&) const override
    {
        return AllRows(database).size() == 1 ? "A loja precisa abrir em algum dia: o último horário do "
                                               "expediente não pode ser excluído."
                                             : "";
    }

    std::string OrderOf(const OpeningHoursRow& record) const override { return OrderInWeek(record); }
};

class EmployeeHours : public WeekRegister<EmployeeHoursRecord> {
public:
    EmployeeHours()
        : WeekRegister({"horarios", "Horários dos funcionários", "horário de trabalho"},
                       EmployeeHoursColumns(),
                       Of(WhoWorks,
                          ShownColumns(EmployeeHoursColumns(),
                                       {column::Day, column::FromTime, column::UntilTime, "Código"})))
    {
    }

    std::vector<Offer> Offers(Database& database, std::size_t field, const Texts&) const override
    {
        return field == FieldNamed(Fields(), column::Employee) ? OfferedEmployees(database)
                                                               : std::vector<Offer>();
    }

private:
    static std::string WhoWorks(const EmployeeHoursRecord& record) { return record.nickname; }

    void Load(Database& database, std::span<EmployeeHoursRecord> records) const override
    {
        Nicknames nicknames = AllNicknames(database);
        for (EmployeeHoursRecord& record : records)
            record.nickname = nicknames[record.codigoDoFuncionario];
    }

    void CheckRecord(const Among& among, const EmployeeHoursRecord* stored, EmployeeHoursRecord& record,
                     Refusals& refusals) const override
    {
        CheckEmployee(among, stored ? stored->codigoDoFuncionario : 0, record.codigoDoFuncionario, refusals);
        CheckHours(among, stored, record, refusals);
    }

    /// Two employees may have one nickname.
    std::string OrderOf(const EmployeeHoursRecord& record) const override
    {
        return FoldText(record.nickname) + "\n" + std::to_string(record.codigoDoFuncionario) + "\n"
            + OrderInWeek(record);
    }
};

class Absences : public RegisterOf<AbsenceRecord> {
public:
    Absences()
        : RegisterOf({"ausencias", "Ausências", "ausência", 'a'}, AbsenceColumns(),
                     Of(WhoIsAway,
                        ShownColumns(AbsenceColumns(),
                                     {column::FromDate, column::FromTime, column::UntilDate,
                                      column::UntilTime, column::Reason})))
    {
    }

    std::string_view SuggestionsTitle() const override { return UsualDaysTitle; }
    std::vector<Suggestion> Suggestions(Database& database, int year) const override
    {
        AbsenceRecord morning;
        morning.dataInicial = morning.dataFinal = IsoDate(AshWednesday(year));
        morning.horaInicial = "00:00";
        morning.horaFinal = "12:00";
        morning.motivo = "Quarta-feira de Cinzas";
        const bool isStored = std::ranges::any_of(AllRows(database), [&](const AbsenceRecord& row) {
            return row.codigoDoFuncionario.IsNull() && Span(row).first <= Span(morning).first
                && Span(morning).second <= Span(row).second;
        });
        return {{TextsOf(morning),
                 morning.motivo + " até as 12:00, " + DayInWords(ShownDate(morning.dataInicial)), isStored}};
    }

    std::vector<Offer> Offers(Database& database, std::size_t field, const Texts&) const override
    {
        return field == FieldNamed(Fields(), column::Employee) ? OfferedEmployees(database)
                                                               : std::vector<Offer>();
    }

    std::string ConcernAbout(Database& database, Key key, const Texts& typed) const override
    {
        const auto wanted = RecordOf(typed);
        if (!wanted)
            return {};
        const auto shown = key == 0 ? std::nullopt : Read(database, key);
        const auto stored = shown ? RecordOf(*shown) : std::nullopt;
        if (stored && SpanOf(*stored) == SpanOf(*wanted))
            return {};
        return BookedInSpan(database, SpanOf(*wanted));
    }

private:
    static SpanOfEmployee SpanOf(const AbsenceRecord& record)
    {
        return {record.codigoDoFuncionario.ValueOr(0), record.dataInicial + " " + record.horaInicial,
                record.dataFinal + " " + record.horaFinal};
    }

    /// From when until when, as moments that can be compared.
    static std::pair<std::string, std::string> Span(const AbsenceRecord& record)
    {
        return {record.dataInicial + record.horaInicial, record.dataFinal + record.horaFinal};
    }

    static std::string WhoIsAway(const AbsenceRecord& record)
    {
        return record.codigoDoFuncionario.IsNull() ? "Todos" : record.nickname;
    }

    void Load(Database& database, std::span<AbsenceRecord> records) const override
    {
        Nicknames nicknames = AllNicknames(database);
        for (AbsenceRecord& record : records)
            record.nickname = nicknames[record.codigoDoFuncionario.ValueOr(0)];
    }

    void CheckRecord(const Among& among, const AbsenceRecord* stored, AbsenceRecord& record,
                     Refusals& refusals) const override
    {
        CheckEmployee(among, stored ? stored->codigoDoFuncionario.ValueOr(0) : 0,
                      record.codigoDoFuncionario.ValueOr(0), refusals);
        if (record.dataInicial.empty() || record.dataFinal.empty())
            return;
        if (record.dataFinal < record.dataInicial)
            return refusals.Add(column::UntilDate, "não pode ser antes da data inicial.");
        const bool hasTimes = !record.horaInicial.empty() && !record.horaFinal.empty();
        if (hasTimes && record.dataFinal == record.dataInicial && record.horaFinal <= record.horaInicial)
            refusals.Add(column::UntilTime, "deve ser depois da hora inicial, que é do mesmo dia.");
    }

    /// The newest first, since the order of texts goes up: what each digit lacks of nine.
    std::string OrderOf(const AbsenceRecord& record) const override
    {
        std::string order = record.dataInicial + record.horaInicial;
        for (char& c : order) {
            if (c >= '0' && c <= '9')
                c = static_cast<char>('0' + ('9' - c));
        }
        return order;
    }
};

} // namespace

const Register& OpeningHoursRegister() { return Only<OpeningHours>(); }
const Register& EmployeeHoursRegister() { return Only<EmployeeHours>(); }
const Register& AbsenceRegister() { return Only<Absences>(); }

} // namespace kova::family::registers
