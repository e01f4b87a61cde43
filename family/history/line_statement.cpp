#include "family/history/line_statement.hpp"

#include "agenda/contracts/utf8.hpp"
#include "family/data/audit/audit.hpp"
#include "family/data/audit/short_names.hpp"
#include "family/data/engine/search_text.hpp"
#include "family/data/stores/appointment_rows.hpp"
#include "family/data/stores/appointment_status.hpp"

#include <algorithm>

namespace kova::family::history {

namespace {

std::string ListOf(const std::vector<Key>& keys)
{
    std::string list;
    for (const Key key : keys)
        list.append(list.empty() ? "" : ", ").append(std::to_string(key));
    return "(" + list + ")";
}

bool IsWord(char letter)
{
    const auto byte = static_cast<unsigned char>(letter);
    return (byte >= '0' && byte <= '9') || (byte >= 'a' && byte <= 'z') || byte >= 0x80;
}

std::vector<std::string> WordsIn(const std::string& folded)
{
    std::vector<std::string> words(1);
    for (const char letter : folded) {
        if (IsWord(letter))
            words.back() += letter;
        else if (!words.back().empty())
            words.emplace_back();
    }
    if (words.back().empty())
        words.pop_back();
    return words;
}

/// Puts a statement together.
class Writer {
public:
    Writer(const Filter& filter, const Findings& findings, const Dialect& dialect)
        : filter_(filter), findings_(findings), dialect_(dialect)
    {
    }

    LineStatement Run(const std::optional<Place>& behind, std::size_t most)
    {
        AddConditions();
        AddPlace(behind);
        most_ = most;
        const std::string codes = Codes();
        const bool goesByDays = findings_.hasManyOfText && filter_.subject.kind == Subject::Kind::Everything;
        const bool joins = !codes.empty() && !dialect_.IsServer() && !goesByDays;
        if (!codes.empty())
            conditions_.push_back(joins ? "a.codigo = k.codigo"
                                      : dialect_.IsServer()
                                      // However many codes a server thinks that there are, it goes by them.
                                      ? "a.codigo = any(array(" + codes + "))"
                                      : "+a.codigo in (" + codes + ")");
        std::string text = joins ? "with k as materialized (" + codes + ") " : "";
        text +=
            "select a.codigo, a.momento, a.usuario, a.posto, a.tabela, a.chave, a.operacao, a.antes, a.depois"
            " from ";
        text += joins ? "k cross join auditoria a" : "auditoria a";
        statement_.text = text + Where() + FirstOfThem();
        return std::move(statement_);
    }

    LineStatement RunForMoved(const std::string& day)
    {
        statement_.text = Moved(day);
        return std::move(statement_);
    }

private:
    /// As the engine's indexes have the line's day: a number in a file, where texts have no short form.
    std::string Day() const { return AsDay("substr(a.momento, 1, 10)"); }
    std::string AsDay(const std::string& text) const
    {
        return dialect_.IsServer() ? text : "cast(replace(" + text + ", '-', '') as integer)";
    }

    std::string Where() const
    {
        std::string text;
        for (const std::string& condition : conditions_)
            text.append(text.empty() ? " where " : " and ").append(condition);
        return text;
    }

    std::string FirstOfThem() const
    {
        return " order by " + Day() + " desc, a.codigo desc limit " + std::to_string(most_);
    }

    /// The codes of all lines that come into question, where an index of the single conditions would not lead
    /// to them.
    std::string Codes()
    {
        const std::string ofText = CodesOfText();
        std::string ofSubject = CodesOfSubject();
        if (ofSubject.empty() && ofText.empty() && findings_.rare)
            ofSubject = "select codigo from auditoria a where " + ConditionOf(*findings_.rare, dialect_);
        if (ofSubject.empty() || ofText.empty())
            return ofSubject + ofText;
        return "select codigo from (" + ofSubject + ") s intersect select codigo from (" + ofText + ") t";
    }

    std::string CodesOfSubject()
    {
        if (findings_.rows)
            return CodesOfRows(*findings_.rows);
        const Subject& subject = filter_.subject;
        switch (subject.kind) {
        case Subject::Kind::Everything: return {};
        case Subject::Kind::Row: return CodesOfRow();
        case Subject::Kind::Customer: return CodesOfCustomer();
        case Subject::Kind::User: return CodesOfUser();
        case Subject::Kind::BookedDay: return CodesOfDay();
        }
        return {};
    }

    static std::string CodesOf(const std::string& table, const std::string& keys)
    {
        return "select codigo from auditoria where tabela = '" + table + "' and chave in " + keys;
    }

    static std::string CodesOfRows(const std::vector<RowsOfTable>& rows)
    {
        std::string codes = "select codigo from auditoria where codigo < 0";
        for (const RowsOfTable& one : rows)
            if (!one.keys.empty())
                codes += " union " + CodesOf(one.table, ListOf(one.keys));
        return codes;
    }

    std::string CodesOfRow()
    {
        const std::string key = "(" + std::to_string(filter_.subject.key) + ")";
        Bind("tabela_da_linha", filter_.subject.table);
        std::string codes =
            "select codigo from auditoria where tabela = :tabela_da_linha and chave in " + key;
        if (filter_.subject.table == AppointmentRow::Table)
            codes += " union "
                + CodesOf(PreSaleRow::Table,
                          "(select codigo from pre_venda where numero_do_agendamento in " + key + ")");
        return codes;
    }

    std::string CodesOfCustomer() const
    {
        const std::string of = " where codigo_do_cliente in " + ListOf(findings_.customers) + ")";
        return CodesOf("cliente", ListOf(findings_.customers)) + " union "
            + CodesOf("animal", "(select codigo from animal" + of) + " union "
            + CodesOf(AppointmentRow::Table, "(select numero from agendamento" + of) + CodesOfGone();
    }

    std::string CodesOfGone() const
    {
        std::string codes;
        for (const auto& [table, key] : findings_.gone)
            codes += " union " + CodesOf(table, "(" + std::to_string(key) + ")");
        return codes;
    }

    std::string CodesOfUser()
    {
        std::string codes = CodesOf("usuario", ListOf({filter_.subject.key}));
        for (std::size_t at = 0; at < findings_.users.size(); ++at) {
            const std::string name = "quem" + std::to_string(at);
            Bind(name, findings_.users[at]);
            codes += " union select codigo from (" + FirstBy(name) + ") " + name;
        }
        return codes;
    }

    /// Of what one has written in years no more than can be told, where nothing else narrows it later.
    std::string FirstBy(const std::string& name) const
    {
        const std::string where = Where();
        return "select a.codigo from auditoria a" + where + (where.empty() ? " where " : " and ")
            + "a.usuario = :" + name + (SearchText(filter_.text).IsEmpty() ? FirstOfThem() : "");
    }

    /// Those that are booked for it, and those of which a line tells that they were.
    std::string CodesOfDay()
    {
        Bind("dia", filter_.subject.day);
        return CodesOf(AppointmentRow::Table, "(select numero from agendamento where data_inicial = :dia)")
            + " union select codigo from auditoria where tabela = 'agendamento' and chave in ("
            + Moved(filter_.subject.day) + ")";
    }

    std::string Moved(const std::string& day)
    {
        return "select chave from auditoria a where " + HasWords("palavras_do_dia", day)
            + " and tabela = 'agendamento' and "
            + Tells("a.antes", "data_inicial", "\"" + day + "\"", "dia_marcado");
    }

    std::string CodesOfText()
    {
        const SearchText text(filter_.text);
        if (text.IsEmpty())
            return {};
        std::string codes;
        if (!WordsSought(filter_.text, dialect_).empty())
            codes = LinesWithWords("palavras", filter_.text);
        if (!text.code.IsNull())
            codes += (codes.empty() ? "" : " union ")
                + ("select codigo from auditoria where tabela in " + Tables()
                   + " and chave = " + std::to_string(text.code.value));
        return codes.empty() ? "select codigo from auditoria where codigo < 0" : codes;
    }

    /// The codes of the lines that have the words.
    std::string LinesWithWords(const std::string& name, const std::string& text)
    {
        Bind(name, WordsSought(text, dialect_));
        return dialect_.IsServer()
            ? "select codigo from auditoria a where palavras_da_auditoria(a.antes, a.depois)"
              " @@ to_tsquery('simple', :"
                + name + ")"
            : "select rowid as codigo from palavras_da_auditoria where palavras_da_auditoria match :" + name;
    }

    /// The condition on a line called `a` that it has the words.
    std::string HasWords(const std::string& name, const std::string& text)
    {
        return "a.codigo in (" + LinesWithWords(name, text) + ")";
    }

    /// Those whose rows people know by a number.
    static std::string Tables()
    {
        return "('agendamento', 'cliente', 'animal', 'servico', 'tipo_de_servico', 'funcionario', 'usuario',"
               " 'pre_venda', 'pacote', 'importacao')";
    }

    void AddConditions()
    {
        for (const ColumnValue& one : ColumnsOf(filter_)) {
            Bind(one.column, one.value);
            conditions_.push_back(ConditionOf(one, dialect_));
        }
        if (filter_.operation == Cancellation)
            AddCancellation();
        if (!filter_.from.empty()) {
            Bind("desde", filter_.from);
            conditions_.push_back(Day() + " >= " + AsDay(":desde"));
        }
    }

    /// The audit tells of it as of any other change.
    void AddCancellation()
    {
        const std::string cancelled = std::to_string(appointment_status::Cancelled);
        conditions_.push_back(ConditionOf({"tabela", AppointmentRow::Table}, dialect_, "'agendamento'"));
        conditions_.push_back(Tells("a.depois", "situacao", cancelled, "depois_cancelado"));
        conditions_.push_back("not " + Tells("a.antes", "situacao", cancelled, "antes_cancelado"));
    }

    /// The condition that a line keeps this value of a column of appointments, under whichever name.
    std::string Tells(const std::string& where, std::string_view column, const std::string& value,
                      const std::string& name)
    {
        std::string text;
        for (const std::string& beginning : BeginningsOf(column)) {
            const std::string one = name + (text.empty() ? "" : "_por_extenso");
            Bind(one, "%" + beginning + value + "%");
            text.append(text.empty() ? "" : " or ").append(where).append(" like :").append(one);
        }
        return "(" + text + ")";
    }

    void AddPlace(const std::optional<Place>& behind)
    {
        std::string last = filter_.to;
        if (behind && (last.empty() || behind->day < last))
            last = behind->day;
        if (!last.empty()) {
            Bind("ate", last);
            conditions_.push_back(Day() + " <= " + AsDay(":ate"));
        }
        if (behind && behind->day == last)
            conditions_.push_back("(" + Day() + " < " + AsDay(":ate") + " or a.codigo < "
                                  + std::to_string(behind->code) + ")");
    }

    void Bind(const std::string& name, const std::string& value)
    {
        statement_.parameters.emplace_back(name, value);
    }

    const Filter& filter_;
    const Findings& findings_;
    const Dialect& dialect_;
    LineStatement statement_;
    std::vector<std::string> conditions_;
    std::size_t most_ = 0;
};

} // namespace

std::vector<ColumnValue> ColumnsOf(const Filter& filter)
{
    const bool isCancellation = filter.operation == Cancellation;
    std::vector<ColumnValue> columns = {
        {"usuario", filter.user},
        {"operacao", isCancellation ? std::string(audit_operation::Change) : filter.operation},
        {"tabela", filter.table},
    };
    std::erase_if(columns, [](const ColumnValue& one) { return one.value.empty(); });
    return columns;
}

bool IsOfMost(const ColumnValue& one)
{
    return one.value == AppointmentRow::Table || one.value == audit_operation::Insertion
        || one.value == audit_operation::Change;
}

std::string ConditionOf(const ColumnValue& one, const Dialect& dialect, const std::string& value)
{
    const std::string column = "a." + one.column;
    const std::string condition = column + " = " + (value.empty() ? ":" + one.column : value);
    // An index that begins with the same column, and not with the day, would lead through half of all lines.
    if (IsOfMost(one))
        return (dialect.IsServer() ? "" : "+") + condition;
    if (one.column == "operacao")
        return condition + " and a.operacao not in ('inclusao', 'alteracao')";
    return condition + (one.column == "tabela" ? " and a.tabela <> 'agendamento'" : "");
}

LineStatement StatementOf(const Filter& filter, const Findings& findings, const std::optional<Place>& behind,
                          std::size_t most, const Dialect& dialect)
{
    return Writer(filter, findings, dialect).Run(behind, most);
}

LineStatement StatementOfMoved(const std::string& day, const Dialect& dialect)
{
    const Filter filter;
    const Findings findings;
    return Writer(filter, findings, dialect).RunForMoved(day);
}

std::string WordsSought(const std::string& text, const Dialect& dialect)
{
    std::string sought;
    for (const std::string& word : WordsIn(SearchText(utf8::WellFormed(text)).folded)) {
        sought.append(sought.empty() ? "" : dialect.IsServer() ? " & " : " ");
        sought += dialect.IsServer() ? word + ":*" : "\"" + word + "\"*";
    }
    return sought;
}

} // namespace kova::family::history
