#include "family/privacy/anonymise.hpp"

#include "family/business/merged_row_text.hpp"
#include "family/data/archive/audit_archive.hpp"
#include "family/data/audit/archived_part.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/audit/audit_chain.hpp"
#include "family/data/audit/code_ranges.hpp"
#include "family/data/audit/import_audit.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/engine/safe_write.hpp"
#include "family/data/engine/snapshot.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/rows/select_where.hpp"
#include "family/data/rows/update_row.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/stores/waiting_list.hpp"
#include "family/privacy/affected.hpp"
#include "family/privacy/clean_values.hpp"
#include "family/privacy/cleaned_archive.hpp"
#include "family/privacy/remains.hpp"
#include "family/users/denials.hpp"
#include "system/path_text.hpp"

#include <algorithm>
#include <filesystem>

namespace kova::family::privacy {

namespace {

using Outcome = AnonymiseAnswer::Outcome;

/// A customer's values of `situacao`, and an animal's.
constexpr int DeletedCustomer = 4, InactiveAnimal = 2;

struct HeldCustomer : CustomerRow {
    static constexpr bool LocksRow = true;
};

struct ChannelOfPerson : ChannelRow {
    static constexpr const char* FoundBy = "codigo_do_cliente";
};

struct AnimalOfPerson : AnimalRow {
    static constexpr const char* FoundBy = "codigo_do_cliente";
};

class ChannelRemoval : public KeptStatement {
public:
    explicit ChannelRemoval(Database& database)
        : statement_((database.Session().prepare
                          << "delete from canal_de_comunicacao where codigo_do_cliente = :codigo",
                      soci::use(customer_, "codigo")))
    {
    }

    void Run(Key customer)
    {
        customer_ = customer;
        statement_.execute(true);
    }

private:
    Key customer_ = 0;
    soci::statement statement_;
};

template <class Row> bool IsSame(const Row& one, const Row& other)
{
    return ValuesOf(one).Line() == ValuesOf(other).Line();
}

template <class Row> std::vector<Row> RowsOf(Database& database, Key customer)
{
    std::vector<Row> rows;
    SelectWhere<Row>(database, std::set<Key>{customer}, [&](const Row& row) { rows.push_back(row); });
    return rows;
}

/// The text without what tells who somebody is.
std::string Cleaned(const StoredAuditLine& line, const std::string& text)
{
    AuditedValues values = ReadValues(text);
    CleanValues(line.tabela, line.chave, values);
    return values.dump(-1, ' ', false, AuditedValues::error_handler_t::replace);
}

class Anonymiser {
public:
    /// The archive may be missing.
    Anonymiser(Database& database, Database* archive, const AnonymiseRequest& request)
        : database_(database), archive_(archive), request_(request)
    {
    }

    /// Looks for what has to be written, and whether it may be. Goes through the audit behind the last line
    /// that was looked at, unless the person is known by other names and numbers since.
    AnonymiseAnswer Look(const std::string& moment, const LongWork& work)
    {
        if (const std::string merged = MergedText<CustomerRow>(database_, request_.code); !merged.empty())
            return {.outcome = Outcome::Gone, .text = merged};
        const std::optional<Person> person = FindPerson(database_, request_.code, archive_);
        if (!person)
            return {.outcome = Outcome::Gone,
                    .text = "Não há cliente com o código " + std::to_string(request_.code) + "."};
        const std::optional<ArchivedPart> part = LastArchived(database_);
        // Lines may have gone into the archive meanwhile.
        if (person != person_ || (part ? part->code : 0) != lastArchiving_)
            BeginAnew();
        person_ = person;
        lastArchiving_ = part ? part->code : 0;
        affected_ = FindAffected(database_, *person_, request_.sameName);
        CollectLines(work);
        AnonymiseAnswer answer = Counted();
        answer.text = WhyNotNow(database_, *person_, affected_, moment);
        answer.outcome = answer.text.empty() ? Outcome::Done : Outcome::Refused;
        return answer;
    }

    /// Cleans the lines that a desk had written, but not yet kept, when the audit was looked through. To be
    /// run where several write at a time, after what Write has written is kept.
    void CleanLateLines(const Author& author, const LongWork& work)
    {
        BeginAnew();
        CollectLines(work);
        if (lines_.empty())
            return;
        WriteSafely(database_, [&] {
            WriteLines();
            Tell(author, {});
            return true;
        });
    }

    /// Writes what Look has found, in the transaction that is open.
    void Write(const AnonymiseAnswer& answer, const Author& author)
    {
        WriteCustomer();
        WriteAnimals();
        database_.With<ChannelRemoval>([&](ChannelRemoval& removal) { removal.Run(person_->code); });
        for (const AppointmentRow& row : affected_.all)
            WriteAppointment(row.numero);
        for (const WaitingRow& row : FindWaitingOf(database_, person_->code))
            WriteWaiting(row.codigo);
        WriteLines();
        Tell(author,
             AuditValues()
                 .Add("canais", answer.channels)
                 .Add("animais", answer.animals)
                 .Add("agendamentos", answer.appointments)
                 .Add("pedidos_na_lista_de_espera", answer.waiting));
    }

    /// What the archive's lines are to be, after Write.
    const std::vector<AuditTexts>& ArchivedLines() const { return archived_; }

private:
    void BeginAnew()
    {
        lines_.clear();
        archived_.clear();
        lastLine_ = 0;
    }

    void WriteLines()
    {
        for (const AuditTexts& line : lines_) {
            Update(database_, line);
            LinkAnew(database_, line.codigo);
        }
    }

    /// Behind the lines that were cleaned: those that it names are known to be changed rightly.
    void Tell(const Author& author, AuditValues what)
    {
        if (archive_)
            LinkCleaned(database_, *archive_, archived_);
        std::vector<Key> codes;
        for (const auto* lines : {&archived_, &lines_})
            for (const AuditTexts& line : *lines)
                codes.push_back(line.codigo);
        std::ranges::sort(codes);
        codes.erase(std::ranges::unique(codes).begin(), codes.end());
        what.Add("linhas_da_auditoria", static_cast<long long>(codes.size()))
            .Add(CleanedLinesColumn, RangesOf(codes));
        AuditAnonymisation(database_, author, CustomerRow::Table, person_->code, what);
    }

    AnonymiseAnswer Counted() const
    {
        AnonymiseAnswer answer;
        answer.channels = static_cast<long long>(RowsOf<ChannelOfPerson>(database_, person_->code).size());
        answer.animals = static_cast<long long>(RowsOf<AnimalOfPerson>(database_, person_->code).size());
        answer.appointments = static_cast<long long>(affected_.all.size());
        answer.waiting = static_cast<long long>(FindWaitingOf(database_, person_->code).size());
        answer.auditLines = static_cast<long long>(lines_.size() + archived_.size());
        answer.undecided = affected_.undecided;
        return answer;
    }

    bool IsMeant(Likeness likeness) const
    {
        return IsHis(likeness) || (likeness == Likeness::Name && request_.sameName.value_or(false));
    }

    void CollectLines(const LongWork& work)
    {
        LinesOfPerson::Rows rows;
        for (const AppointmentRow& row : affected_.all)
            rows.appointments.insert(row.numero);
        for (const AnimalRow& animal : RowsOf<AnimalOfPerson>(database_, person_->code))
            rows.animals.insert(animal.codigo);
        for (const WaitingRow& row : FindWaitingOf(database_, person_->code))
            rows.waiting.insert(row.codigo);
        LinesOfPerson judge(*person_, rows);
        if (archive_ && lastLine_ == 0)
            VisitAudit(*archive_, 0, work,
                       [&](const StoredAuditLine& line) { Collect(judge, line, archived_); });
        VisitAudit(database_, lastLine_, work, [&](const StoredAuditLine& line) {
            lastLine_ = line.codigo;
            Collect(judge, line, lines_);
        });
    }

    void Collect(LinesOfPerson& judge, const StoredAuditLine& line, std::vector<AuditTexts>& lines) const
    {
        // It names nobody, and tells which lines were changed rightly.
        if (line.operacao == audit_operation::Anonymisation)
            return;
        AuditTexts cleaned{line.codigo, CleanedText(judge, line, line.antes),
                           CleanedText(judge, line, line.depois)};
        // A null is never cleaned.
        if (cleaned.antes.value != line.antes.value || cleaned.depois.value != line.depois.value)
            lines.push_back(std::move(cleaned));
    }

    Nullable<std::string> CleanedText(LinesOfPerson& judge, const StoredAuditLine& line,
                                      const Nullable<std::string>& text) const
    {
        if (!IsMeant(judge.Of(line, text)))
            return text;
        return Cleaned(line, text.value);
    }

    void WriteCustomer()
    {
        auto customer = FindByKey<CustomerRow>(database_, person_->code);
        if (!customer)
            return;
        CleanRow(*customer);
        customer->situacao = DeletedCustomer;
        customer->Compose({});
        Update(database_, *customer);
    }

    void WriteAnimals()
    {
        for (AnimalRow animal : RowsOf<AnimalOfPerson>(database_, person_->code)) {
            CleanRow(animal);
            animal.situacao = InactiveAnimal;
            animal.nomeDeBusca = FoldText(animal.nome);
            Update(database_, animal);
        }
    }

    /// Read again and locked: another desk may have written it meanwhile.
    void WriteAppointment(Key number)
    {
        const auto stored = FindByKey<LockedAppointmentRow>(database_, number);
        if (!stored)
            return;
        AppointmentRow row = *stored;
        CleanRow(row);
        row.Compose();
        if (IsSame<AppointmentRow>(*stored, row))
            return;
        ++row.versao;
        Update(database_, row);
    }

    void WriteWaiting(Key code)
    {
        const auto stored = LockWaiting(database_, code);
        if (!stored)
            return;
        WaitingRow row = stored->row;
        CleanRow(row);
        if (waiting_status::IsOpen(row.situacao))
            row.situacao = waiting_status::GivenUp;
        if (IsSame(stored->row, row))
            return;
        ++row.versao;
        Update(database_, row);
    }

    Database& database_;
    Database* archive_;
    const AnonymiseRequest request_;
    std::optional<Person> person_;
    AffectedAppointments affected_;
    Key lastLine_ = 0, lastArchiving_ = 0;
    std::vector<AuditTexts> lines_, archived_;
};

/// Overwrites what it frees, from now on.
void EraseWhatIsFreed(Database& database)
{
    if (database.GetDialect().IsServer())
        return;
    try {
        database.Session() << "pragma secure_delete = on";
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

template <class Act> auto Told(const std::string& source, Act act)
{
    try {
        return act();
    } catch (const Interrupted& cause) {
        throw TranslatedFailure(source, cause);
    }
}

/// Empty where none stays.
std::string WhyLateLinesStay(Anonymiser& anonymiser, const Author& author)
{
    try {
        anonymiser.CleanLateLines(author, {});
        return {};
    } catch (const DatabaseFailure& failure) {
        return "O histórico não pôde ser conferido até o fim; torne o cliente anônimo mais uma vez. "
            + failure.Cause();
    }
}

void AddRemains(AnonymiseAnswer& answer, const std::string& remains)
{
    if (!remains.empty())
        answer.remains += (answer.remains.empty() ? "" : "\n") + remains;
}

std::string WhyArchiveStays(Database& database)
{
    const std::string told = ToldArchive(database);
    return told.empty() ? ""
                        : told
            + " Ele não foi encontrado, e ainda tem o que havia deste cliente. Informe onde ele está com "
              "\"agenda-data forget --archive\", que também pode ser rodado depois.";
}

/// The archive's own file is cleaned with the shop.
std::vector<std::string> OtherCopiesBeside(const std::string& source, const std::string& archive)
{
    std::vector<std::string> copies = CopiesBeside(source);
    std::erase_if(copies, [&](const std::string& copy) {
        std::error_code unreadable;
        return !archive.empty()
            && std::filesystem::equivalent(system::PathOf(copy), system::PathOf(archive), unreadable);
    });
    return copies;
}

/// Most of the audit is looked through before anybody has to wait.
AnonymiseAnswer WriteAll(Database& database, const AnonymiseRequest& request, const Author& author,
                         const LongWork& work)
{
    RequireRight(database, author, Right::Anonymise);
    const std::unique_ptr<ArchiveFile> archive =
        MayRewriteAudit(database) ? OpenArchiveForWriting(database, request.archive) : nullptr;
    Anonymiser anonymiser(database, archive ? &archive->Lines() : nullptr, request);
    AnonymiseAnswer answer = anonymiser.Look(author.moment, work);
    if (!answer.IsDone())
        return answer;
    WriteSafely(database, [&] {
        RequireRight(database, author, Right::Anonymise);
        LockImports(database);
        // Who books for the customer now is waited for, and counts.
        FindByKey<HeldCustomer>(database, request.code);
        answer = anonymiser.Look(author.moment, {});
        if (answer.IsDone())
            anonymiser.Write(answer, author);
        return answer.IsDone();
    });
    if (!answer.IsDone())
        return answer;
    if (archive)
        AddRemains(answer, CleanArchive(*archive, anonymiser.ArchivedLines()));
    else
        AddRemains(answer, WhyArchiveStays(database));
    if (database.GetDialect().IsServer())
        AddRemains(answer, WhyLateLinesStay(anonymiser, author));
    return answer;
}

} // namespace

AnonymiseAnswer PlanToAnonymise(const std::string& source, const AnonymiseRequest& request,
                                const std::string& moment, const LongWork& work)
{
    return Told(source, [&] {
        const std::unique_ptr<Database> database = OpenNewestForReading(source);
        const Snapshot snapshot(*database);
        const std::unique_ptr<Database> archive = OpenArchive(*database, request.archive);
        AnonymiseAnswer answer = Anonymiser(*database, archive.get(), request).Look(moment, work);
        answer.copies = OtherCopiesBeside(source, archive ? archive->Path() : "");
        return answer;
    });
}

AnonymiseAnswer Anonymise(const std::string& source, const AnonymiseRequest& request, const Author& author,
                          const LongWork& work)
{
    std::string archive;
    AnonymiseAnswer answer = Told(source, [&] {
        const std::shared_ptr<Database> database = OpenForLongWork(source);
        archive = PlaceOfArchive(*database, request.archive);
        EraseWhatIsFreed(*database);
        return TellingDenials(*database, author, [&] { return WriteAll(*database, request, author, work); });
    });
    if (!answer.IsDone())
        return answer;
    AddRemains(answer, DropRemains(source));
    answer.copies = OtherCopiesBeside(source, archive);
    return answer;
}

} // namespace kova::family::privacy
