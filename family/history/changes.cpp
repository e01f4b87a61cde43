#include "family/history/changes.hpp"

#include "family/business/appointments/appointment_history.hpp"
#include "family/business/audit_words.hpp"
#include "family/business/clash_text.hpp"
#include "family/business/shown_values.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/rows/waiting_rows.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/data/stores/appointment_status.hpp"
#include "family/data/stores/register_names.hpp"
#include "family/history/described_tables.hpp"
#include "family/history/lines.hpp"
#include "family/users/user_rights.hpp"

#include <algorithm>
#include <cstdlib>
#include <span>

namespace kova::family::history {

namespace {

using registers::FieldInfo;
using registers::FieldKind;
using registers::Register;
using registers::Texts;

Key Number(const std::string& kept) { return std::strtoll(kept.c_str(), nullptr, 10); }

std::string AsItIs(Database&, const std::string& kept) { return kept; }
std::string MoneyOf(Database&, const std::string& kept) { return ShownMoney(Number(kept)); }
std::string MomentOf(Database&, const std::string& kept)
{
    return IsIsoMoment(kept) ? ShownMoment(kept) : kept;
}
std::string ServiceOf(Database& database, const std::string& kept)
{
    return NamedService(database, Number(kept));
}
std::string CustomerOf(Database& database, const std::string& kept)
{
    return NamedCustomer(database, Number(kept));
}
std::string AnimalOf(Database& database, const std::string& kept)
{
    return NamedAnimal(database, Number(kept));
}
std::string EmployeeOf(Database& database, const std::string& kept)
{
    return NamedEmployee(database, Number(kept));
}
std::string DateOf(Database&, const std::string& kept) { return IsIsoDate(kept) ? ShownDate(kept) : kept; }
std::string WeekdaysOf(Database&, const std::string& kept) { return ShownWeekdays(kept); }
std::string WaitingStatusOf(Database&, const std::string& kept)
{
    return ShownWaitingStatus(static_cast<int>(Number(kept)));
}
std::string RightOf(Database&, const std::string& kept)
{
    const auto right = RightNamed(kept);
    return right ? std::string(InfoOf(*right).label) : kept;
}
std::string PreSaleStatusOf(Database&, const std::string& kept)
{
    return kept == "1" ? "Aberta" : kept == "2" ? "Cancelada" : kept == "3" ? "Faturada" : kept;
}

/// What was undone, and whose it was.
std::string UndoneBy(Database& database, const std::string& kept)
{
    const std::optional<Line> undone = ReadLine(database, Number(kept));
    return undone
        ? ActOf(*undone) + ", de " + PersonOf(undone->audit) + " em " + family::MomentOf(undone->audit)
        : kept;
}

/// A column that no form has.
struct OtherColumn {
    std::string_view column, caption;
    std::string (*show)(Database&, const std::string& kept);
    bool isAmount = false;
};
constexpr OtherColumn Others[] = {
    {"numero_do_agendamento", "Agendamento", AsItIs},
    {"valor_em_centavos", "Valor", MoneyOf, true},
    {"preco_em_centavos", "Preço", MoneyOf, true},
    {"custo_em_centavos", "Custo", MoneyOf, true},
    {"situacao", "Situação", PreSaleStatusOf},
    {"codigo_do_servico", "Serviço", ServiceOf},
    {"codigo_do_cliente", "Cliente", CustomerOf},
    {"criado_em", "Criado em", MomentOf},
    {"criada_em", "Criada em", MomentOf},
    {"criado_por", "Criado por", AsItIs},
    {"codigo_do_papel", "Papel", AsItIs},
    {"direito", "Direito", RightOf},
    {"senha", "Senha", AsItIs},
    {"pin", "PIN", AsItIs},
    {"motivo", "Motivo", AsItIs},
    {"arquivo", "Arquivo", AsItIs},
    {"cadastro", "Cadastro", AsItIs},
    {"ate", "Até o ano", AsItIs},
    {"elo", "Último elo", AsItIs},
    {"ultima_importacao", "Última importação", AsItIs},
    {"de", "Da versão", AsItIs},
    {"para", "Para a versão", AsItIs},
    {"copia", "Cópia", AsItIs},
    {"documento", "Documento", AsItIs},
    {"paginas", "Páginas", AsItIs},
    {"pagina", "Página", AsItIs},
    {"json", "JSON", AsItIs},
    {"codificacao", "Codificação", AsItIs},
    {"linhas", "Linhas", AsItIs},
    {"novos", "Novos", AsItIs},
    {"alterados", "Alterados", AsItIs},
    {"excluidos", "Excluídos", AsItIs},
    {"restaurados", "Restaurados", AsItIs},
    {"mantidos", "Mantidos", AsItIs},
    {"unido", "Registro que foi unido a este", AsItIs},
    {"unido_a", "Continua no registro", AsItIs},
    {"agendamentos", "Agendamentos", AsItIs},
    {"animais", "Animais", AsItIs},
    {"linhas_da_auditoria", "Linhas do histórico", AsItIs},
    {"importacao", "Importação", AsItIs},
    {UndoneLineColumn, "Desfaz", UndoneBy},
};

/// The same of the waiting list, where some columns are called as others elsewhere.
constexpr OtherColumn OfWaitingList[] = {
    {"situacao", "Situação", WaitingStatusOf}, {"codigo_do_animal", "Animal", AnimalOf},
    {"data_inicial", "Do dia", DateOf},        {"data_final", "Até o dia", DateOf},
    {"dias_da_semana", "Dias", WeekdaysOf},    {"hora_inicial", "Das", AsItIs},
    {"hora_final", "Até as", AsItIs},          {"observacao", "Observação", AsItIs},
    {"codigo_da_espera", "Pedido", AsItIs},    {"codigo_do_funcionario", "Funcionário(a)", EmployeeOf},
};

/// Null where nothing is known of it.
const OtherColumn* KnownColumn(std::string_view table, std::string_view column)
{
    const auto in = [&](std::span<const OtherColumn> columns) -> const OtherColumn* {
        const auto found = std::ranges::find(columns, column, &OtherColumn::column);
        return found == columns.end() ? nullptr : &*found;
    };
    const bool isOfWaitingList =
        table == WaitingRow::Table || table == WaitingServiceRow::Table || table == WaitingEmployeeRow::Table;
    const OtherColumn* known = isOfWaitingList ? in(OfWaitingList) : nullptr;
    return known != nullptr ? known : in(Others);
}

/// What follows from other columns, or is told by the line itself.
bool IsToldElsewhere(std::string_view column)
{
    constexpr std::string_view Names[] = {"codigo",       "numero",      "versao",       "incluido_em",
                                          "incluido_por", "alterado_em", "alterado_por", "linhas_limpas"};
    return std::ranges::find(Names, column) != std::end(Names)
        || column.find("busca") != std::string_view::npos || column.starts_with("endereco_completo");
}

/// "outra_coisa" is "Outra coisa".
std::string CaptionOf(std::string_view column)
{
    std::string caption(column);
    std::ranges::replace(caption, '_', ' ');
    if (!caption.empty() && caption.front() >= 'a' && caption.front() <= 'z')
        caption.front() = static_cast<char>(caption.front() - 'a' + 'A');
    return caption;
}

std::string Kept(const AuditedColumns& columns, std::string_view column)
{
    const auto found = columns.find(column);
    return found == columns.end() ? std::string() : found->second.value_or("");
}

bool Has(const AuditedColumns& columns, std::string_view column) { return columns.contains(column); }

/// The changes of one line, as they are told.
class Telling {
public:
    Telling(Database& database, const Author& author, const Line& line)
        : database_(database),
          line_(line),
          hidesAmounts_(!WhyDenied(database, author, Right::SeePrices).empty())
    {
    }

    std::vector<Change> Run()
    {
        if (line_.table == AppointmentRow::Table) {
            for (FieldHistory& field : ChangedFieldsOf(database_, line_.audit.before, line_.audit.after))
                Add(std::move(field.caption), std::move(field.before), std::move(field.after));
            told_ = {"importacao"};
            AddOther(UndoneLineColumn);
            return std::move(changes_);
        }
        if (const Register* of = DescribedTable(line_.table))
            AddFields(*of);
        for (const AuditedColumns* columns : {&line_.audit.before, &line_.audit.after}) {
            for (const auto& [column, value] : *columns) {
                if (!IsToldElsewhere(column))
                    AddOther(column);
            }
        }
        return std::move(changes_);
    }

private:
    void Add(std::string caption, std::string before, std::string after)
    {
        if (before != after)
            changes_.push_back({std::move(caption), std::move(before), std::move(after)});
    }

    void AddAmount(std::string caption, const std::string& before, const std::string& after)
    {
        const auto hidden = [](const std::string& text) { return text.empty() ? "" : HiddenAmount; };
        if (before != after)
            changes_.push_back({std::move(caption), hidden(before), hidden(after)});
    }

    void AddFields(const Register& of)
    {
        const Texts before = of.Told(database_, line_.audit.before),
                    after = of.Told(database_, line_.audit.after);
        const std::vector<FieldInfo>& fields = of.Fields();
        for (std::size_t at = 0; at < fields.size(); ++at) {
            const FieldInfo& field = fields[at];
            told_.insert(told_.end(), field.stored.begin(), field.stored.end());
            if (at == 0)
                continue;
            const std::string was = TextIn(line_.audit.before, field, before[at]),
                              is = TextIn(line_.audit.after, field, after[at]);
            if (field.kind == FieldKind::Money && hidesAmounts_)
                AddAmount(std::string(FormLabel(field)), was, is);
            else
                Add(std::string(FormLabel(field)), was, is);
        }
    }

    /// Empty where the line does not tell of the field.
    std::string TextIn(const AuditedColumns& columns, const FieldInfo& field, const std::string& text)
    {
        const bool isTold = std::ranges::any_of(
            field.stored, [&](const std::string& column) { return Has(columns, column); });
        if (!isTold)
            return {};
        const Register* target = field.kind == FieldKind::Reference ? DescribedName(field.refersTo) : nullptr;
        const bool isCode = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
        return target != nullptr && isCode ? Named(*target, text) : text;
    }

    std::string Named(const Register& of, const std::string& code)
    {
        const Key key = Number(code);
        const auto rows = of.Rows(database_, std::span(&key, 1));
        return rows.empty() || rows.front().cells.empty() ? code : code + " - " + rows.front().cells.front();
    }

    void AddOther(std::string_view column)
    {
        if (std::ranges::find(told_, column) != told_.end())
            return;
        told_.emplace_back(column);
        const std::string before = Kept(line_.audit.before, column), after = Kept(line_.audit.after, column);
        const OtherColumn* const known = KnownColumn(line_.table, column);
        if (known == nullptr)
            return Add(CaptionOf(column), before, after);
        const auto show = [&](const std::string& kept) {
            return kept.empty() ? std::string() : known->show(database_, kept);
        };
        if (known->isAmount && hidesAmounts_)
            AddAmount(std::string(known->caption), show(before), show(after));
        else
            Add(std::string(known->caption), show(before), show(after));
    }

    Database& database_;
    const Line& line_;
    const bool hidesAmounts_;
    std::vector<Change> changes_;
    /// Columns of which nothing is to be said any more.
    std::vector<std::string> told_;
};

/// The verb for a change of the status alone; empty where the line is about something else.
std::string StatusVerb(const Line& line)
{
    if (line.table != AppointmentRow::Table || line.audit.operation != audit_operation::Change
        || ChangedColumns(line.audit) != std::vector<std::string>{"situacao"})
        return {};
    switch (Number(Kept(line.audit.after, "situacao"))) {
    case appointment_status::Booked: return "Marcou como agendado";
    case appointment_status::Attended: return "Marcou como atendido";
    case appointment_status::Cancelled: return "Cancelou";
    case appointment_status::PreSaleGenerated: return "Marcou como atendido e gerou pré-venda para";
    default: return {};
    }
}

std::string RowCalled(const std::string& table, const std::string& key)
{
    return WordsOfTable(table).one + (key == "0" ? "" : " " + key);
}

std::string UnionOf(const Line& line)
{
    const std::string key = std::to_string(line.key), into = Kept(line.audit.after, "unido_a"),
                      gone = Kept(line.audit.after, "unido");
    // All that can be joined is called "o ...".
    return into.empty() ? "Uniu a" + RowCalled(line.table, key) + " o registro " + gone
                        : "Uniu " + RowCalled(line.table, key) + " ao registro " + into;
}

} // namespace

std::vector<Change> ChangesOf(Database& database, const Author& author, const Line& line)
{
    return Telling(database, author, line).Run();
}

std::string RowOf(const Line& line) { return RowCalled(line.table, std::to_string(line.key)); }

namespace {

/// What is done with the shop as a whole, or with what is taken out of it.
bool IsOfShop(const Line& line)
{
    constexpr std::string_view Kinds[] = {audit_operation::Export, audit_operation::Print,
                                          audit_operation::CopyRestored, audit_operation::Archiving,
                                          audit_operation::Migration};
    return std::ranges::find(Kinds, line.audit.operation) != std::end(Kinds);
}

/// The key of an export or a print is a customer's, where they are of one.
std::string ActOfShop(const Line& line)
{
    const bool isOfCustomer = line.key != 0
        && (line.audit.operation == audit_operation::Export
            || line.audit.operation == audit_operation::Print);
    return WordsOfOperation(line.audit.operation).did
        + (isOfCustomer ? " do cliente " + std::to_string(line.key) : "");
}

} // namespace

std::string ActOf(const Line& line)
{
    if (line.audit.operation == audit_operation::Merging)
        return UnionOf(line);
    if (IsOfShop(line))
        return ActOfShop(line);
    const std::string verb = StatusVerb(line);
    return (verb.empty() ? WordsOfOperation(line.audit.operation).did : verb) + " " + RowOf(line);
}

std::vector<std::string> ChangedColumns(const AuditLine& line)
{
    std::vector<std::string> changed;
    for (const auto& [column, after] : line.after) {
        const auto before = line.before.find(column);
        const bool isOfWrite = column == ImportColumn || column == UndoneLineColumn;
        if (!IsToldElsewhere(column) && !isOfWrite
            && (before == line.before.end() || before->second != after))
            changed.push_back(column);
    }
    return changed;
}

AuditedColumns ChangedPart(const AuditLine& line, const AuditedColumns& side)
{
    AuditedColumns changed;
    for (const std::string& column : ChangedColumns(line)) {
        if (const auto kept = side.find(column); kept != side.end())
            changed.insert(*kept);
    }
    return changed;
}

std::string WhatComesBack(Database& database, const Author& author, const Line& line)
{
    std::string what;
    for (const Change& change : ChangesOf(database, author, line)) {
        const std::string former = change.before.empty() ? "vazio" : "\"" + change.before + "\"";
        what += (what.empty() ? "" : "\n") + change.caption + " volta a ser " + former + ".";
    }
    return what;
}

} // namespace kova::family::history
