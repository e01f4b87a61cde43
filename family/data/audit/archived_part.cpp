#include "family/data/audit/archived_part.hpp"

#include "family/data/audit/audit_chain.hpp"
#include "family/data/audit/audit_lines.hpp"
#include "family/data/engine/database.hpp"

#include <cstdlib>

namespace kova::family {

namespace {

class NewestArchiving : public KeptStatement {
public:
    explicit NewestArchiving(Database& database)
        : statement_((database.Session().prepare
                          << "select codigo, chave, depois from auditoria where tabela = :tabela"
                             " and operacao = :operacao order by codigo desc limit 1",
                      soci::into(code_), soci::into(order_), soci::into(what_.value, what_.state),
                      soci::use(table_, "tabela"), soci::use(operation_, "operacao")))
    {
    }

    std::optional<ArchivedPart> Run()
    {
        std::optional<ArchivedPart> part;
        statement_.execute();
        while (statement_.fetch())
            part = Part();
        return part;
    }

private:
    ArchivedPart Part() const
    {
        const AuditedColumns told = ReadAuditedColumns(what_);
        const auto text = [&](const char* name) {
            const auto found = told.find(name);
            return found == told.end() ? std::string() : found->second.value_or("");
        };
        const auto number = [&](const char* name) { return std::strtoll(text(name).c_str(), nullptr, 10); };
        ArchivedPart part;
        part.order = order_;
        part.link = text("elo");
        part.until = static_cast<int>(number("ate"));
        part.file = text("arquivo");
        part.lines = text("linhas");
        part.lastImport = number("ultima_importacao");
        part.code = code_;
        return part;
    }

    const std::string table_ = ArchiveTable, operation_ = audit_operation::Archiving;
    Key code_ = 0, order_ = 0;
    Nullable<std::string> what_;
    soci::statement statement_;
};

} // namespace

std::optional<ArchivedPart> LastArchived(Database& database)
{
    return database.With<NewestArchiving>([](NewestArchiving& statement) { return statement.Run(); });
}

void AuditArchiving(Database& database, const Author& author, const ArchivedPart& part)
{
    AddLine(database,
            EventOf(database, author, ArchiveTable, part.order, audit_operation::Archiving,
                    AuditValues()
                        .Add("ate", part.until)
                        .Add("arquivo", part.file)
                        .Add("elo", part.link)
                        .Add("linhas", part.lines)
                        .Add("ultima_importacao", part.lastImport)));
}

std::string ToldArchive(Database& database)
{
    const std::optional<ArchivedPart> part = LastArchived(database);
    return part ? "A auditoria até " + std::to_string(part->until) + " está em um arquivo à parte (\""
            + part->file + "\")."
                : std::string();
}

} // namespace kova::family
