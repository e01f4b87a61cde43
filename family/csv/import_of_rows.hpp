#pragma once

#include "family/csv/import_of.hpp"
#include "family/data/engine/fold_text.hpp"

namespace kova::family::csv {

/// An import into a table of few rows: a line becomes one of them as it stands, and those that are there are
/// all looked at.
template <class Record> class ImportOfRows : public ImportOf<Record> {
public:
    using Row = Record;

protected:
    using ImportOf<Record>::ImportOf;

    void Complete(Record& record) const override
    {
        if constexpr (requires { record.nomeDeBusca; })
            record.nomeDeBusca = FoldText(record.nome);
    }

    void LookUp(std::span<const Record>) override
    {
        if (this->SeeksTraits())
            SelectRows<Record>(this->GetDatabase(),
                               [this](const Record& stored) { this->AddStored(stored); });
    }

    /// The name that a record is searched by. Without one they are the same with whatever code, and
    /// CheckRecord sees to it.
    std::vector<std::string> TraitsOf(const Record& record) const override
    {
        if constexpr (requires { record.nomeDeBusca; })
            return {record.nomeDeBusca};
        return {};
    }

    void WriteRecord(Record& record, const Author& author) override
    {
        AddRow(this->GetDatabase(), record, author);
    }
};

/// The codes of all rows of a table.
template <class Row> std::unordered_set<Key> AllCodes(Database& database)
{
    std::unordered_set<Key> codes;
    SelectRows<CodeOf<Row>>(database, [&](const CodeOf<Row>& row) { codes.insert(row.code); });
    return codes;
}

/// The register of such an import; the file has the columns of its records.
template <class Kind, const Columns<typename Kind::Row>& (*columns)()>
constexpr Register RegisterOfRows(std::string_view name)
{
    return {name, StartImport<Kind>,
            [](Database& database, const FieldsSink& sink) {
                ExportNames(columns(), sink);
                SelectRows<typename Kind::Row>(
                    database, [&](const typename Kind::Row& row) { ExportRecord(columns(), row, sink); });
            },
            Kind::Row::Table};
}

} // namespace kova::family::csv
