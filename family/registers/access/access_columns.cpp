#include "family/registers/access/access_columns.hpp"

#include "family/registers/description/column_kinds.hpp"

namespace kova::family::registers {

namespace {

using namespace access_columns;

constexpr std::size_t WidthOfName = 60;

Column<RoleRecord> ColumnOf(const RightInfo& info)
{
    Column<RoleRecord> column;
    column.field.label = info.label;
    column.field.kind = FieldKind::YesNo;
    column.field.longest = 3;
    column.read = [right = info.right](const std::string& text, RoleRecord& record) -> std::string {
        const std::optional<bool> yes = ReadYesNo(text);
        if (!yes)
            return "deve ser Sim ou Não.";
        if (*yes)
            record.rights.insert(right);
        else
            record.rights.erase(right);
        return {};
    };
    column.write = [right = info.right](const RoleRecord& record) {
        return YesOrNo(record.rights.contains(right));
    };
    column.clear = [right = info.right](RoleRecord& record) { record.rights.erase(right); };
    return column;
}

} // namespace

const Columns<AccountRecord>& AccountColumns()
{
    using Cols = ColumnsOf<AccountRecord>;
    static const Columns<AccountRecord> columns = {
        Cols::Code("Código", &AccountRecord::codigo),
        Helped("É com ele que se entra; maiúsculas e acentos não importam.",
               Unique(Required(Cols::Text(Name, &AccountRecord::nome, WidthOfName)))),
        AskedAs("Papel",
                RefersTo("papeis",
                         Helped("O que pode fazer. Quem não tem papel não entra.",
                                Cols::Code(RoleOfUser, &AccountRecord::codigoDoPapel)))),
        Helped("Quem está inativo não entra.", Cols::OneOf(Situation, &AccountRecord::situacao, ActiveOrNot)),
    };
    return columns;
}

const Columns<RoleRecord>& RoleColumns()
{
    using Cols = ColumnsOf<RoleRecord>;
    static const Columns<RoleRecord> columns = [] {
        Columns<RoleRecord> all = {Cols::Code("Código", &RoleRecord::codigo),
                                   Unique(Required(Cols::Text(Name, &RoleRecord::nome, WidthOfName)))};
        for (const RightInfo& info : AllRights())
            all.push_back(ColumnOf(info));
        return all;
    }();
    return columns;
}

} // namespace kova::family::registers
