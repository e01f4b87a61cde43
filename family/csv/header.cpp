#include "family/csv/header.hpp"

#include "family/business/clean_text.hpp"
#include "family/csv/csv_writer.hpp"
#include "family/data/engine/fold_text.hpp"

#include <algorithm>
#include <limits>

namespace kova::family::csv {

namespace {

std::string Clean(const std::string& field)
{
    return family::CleanText(field, std::numeric_limits<std::size_t>::max());
}

} // namespace

Header::Header(const CsvRecord& header, const std::vector<Title>& titles, std::string_view registerName,
               Problems& problems)
    : titles_(titles), registerName_(registerName)
{
    if (!header.fault.empty())
        problems.Add(header.line, header.fault);
    for (const std::string& field : header.fields)
        Place(Clean(field), header.line, problems);
    RequireAll(header.line, problems);
}

void Header::Place(const std::string& name, long long line, Problems& problems)
{
    columns_.push_back(None);
    if (name.empty())
        return;
    const std::size_t column = Find(name);
    if (column == None)
        problems.Add(line, "a coluna \"" + name + "\" não é conhecida. " + AllNames());
    else if (std::find(columns_.begin(), columns_.end(), column) != columns_.end())
        problems.Add(line, "a coluna \"" + name + "\" aparece mais de uma vez.");
    columns_.back() = column;
}

std::size_t Header::Find(const std::string& name) const
{
    const std::string folded = family::FoldText(name);
    const auto found = std::find_if(titles_.begin(), titles_.end(), [&](const Title& title) {
        return family::FoldText(title.name) == folded;
    });
    return found == titles_.end() ? None : static_cast<std::size_t>(found - titles_.begin());
}

bool Header::Has(std::size_t column) const { return std::ranges::find(columns_, column) != columns_.end(); }

void Header::RequireAll(long long line, Problems& problems) const
{
    for (std::size_t column = 0; column < titles_.size(); ++column) {
        if (titles_[column].required && std::find(columns_.begin(), columns_.end(), column) == columns_.end())
            problems.Add(line, "falta a coluna \"" + std::string(titles_[column].name) + "\".");
    }
}

std::string Header::AllNames() const
{
    std::string names = "Colunas de " + std::string(registerName_) + ": ";
    for (const Title& title : titles_)
        names.append(&title == &titles_.front() ? "" : ", ").append(title.name);
    return names + ".";
}

Line Header::Read(const CsvRecord& record, Problems& problems) const
{
    if (!record.fault.empty())
        problems.Add(record.line, record.fault);
    std::vector<std::string> cells(titles_.size());
    for (std::size_t field = 0; field < record.fields.size(); ++field) {
        const std::size_t column = field < columns_.size() ? columns_[field] : None;
        std::string cell = Unguarded(Clean(record.fields[field]));
        if (column != None)
            cells[column] = std::move(cell);
        else if (!cell.empty())
            problems.Add(record.line,
                         "o campo " + std::to_string(field + 1) + " (\"" + cell
                             + "\") não pertence a nenhuma coluna.");
    }
    return Line(record.line, std::move(cells), problems);
}

} // namespace kova::family::csv
