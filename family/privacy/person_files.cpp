#include "family/privacy/person_files.hpp"

#include "family/business/merged_row_text.hpp"
#include "family/data/audit/audit_events.hpp"
#include "family/data/engine/snapshot.hpp"
#include "family/data/engine/unfinished_file.hpp"
#include "family/data/rows/people_rows.hpp"
#include "family/data/sources/data_source.hpp"
#include "family/data/sources/told_reading.hpp"
#include "family/privacy/person_report.hpp"
#include "family/users/denials.hpp"
#include "system/path_text.hpp"

#include <cerrno>
#include <filesystem>
#include <fstream>

namespace kova::family::privacy {

namespace {

namespace fs = std::filesystem;

PersonReport ReportOf(const std::string& source, Key code, const Author& author, DateTime now,
                      const LongWork& work)
{
    try {
        const std::unique_ptr<Database> database = OpenNewestForReading(source);
        const Snapshot snapshot(*database);
        RequireRight(*database, author, Right::Export);
        // What was sold to him is told with its prices.
        RequireRight(*database, author, Right::SeePrices);
        // Whose data they are is asked for under the other code.
        if (const std::string merged = MergedText<CustomerRow>(*database, code); !merged.empty())
            throw DatabaseFailure(merged);
        const std::optional<PersonData> data = ReadPerson(*database, code, work);
        if (!data)
            throw DatabaseFailure("Não há cliente com o código " + std::to_string(code) + ".");
        return InWords(*data, now);
    } catch (const RightDenied& denied) {
        // Over another connection: that one only reads.
        AuditDenial(*OpenDatabase(source), author, denied);
        throw;
    } catch (const Interrupted& cause) {
        throw TranslatedFailure(source, cause);
    }
}

void RequireFolder(const std::string& folder)
{
    std::error_code unreadable;
    if (!fs::is_directory(system::PathOf(folder), unreadable))
        throw DatabaseFailure("A pasta \"" + folder + "\" não existe. Informe uma pasta que existe.");
}

void Write(const UnfinishedFile& file, const std::string& content)
{
    std::ofstream stream(system::PathOf(file.Name()), std::ios::binary);
    stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    // Closed as well: an open file cannot be renamed everywhere.
    stream.close();
    if (!stream)
        throw UnwritableFile(file.Path(), {errno, std::generic_category()});
}

/// Takes back a file that was finished, unless both are.
class TakenBack {
public:
    explicit TakenBack(std::string path) : path_(std::move(path)) { }
    ~TakenBack()
    {
        std::error_code ignored;
        if (!path_.empty())
            fs::remove(system::PathOf(path_), ignored);
    }
    TakenBack(const TakenBack&) = delete;
    TakenBack& operator=(const TakenBack&) = delete;

    void Keep() { path_.clear(); }

private:
    std::string path_;
};

void FinishBoth(UnfinishedFile& first, UnfinishedFile& second)
{
    first.Finish();
    TakenBack takenBack(first.Path());
    second.Finish();
    takenBack.Keep();
}

} // namespace

PersonFiles ExportPerson(const std::string& source, Key code, const std::string& folder, const Author& author,
                         DateTime now, const LongWork& work)
{
    RequireFolder(folder);
    const std::string name =
        system::TextOf(system::PathOf(folder) / system::PathOf("cliente-" + std::to_string(code)));
    PersonFiles files{name + ".html", name + ".json"};
    // Before anything is read: what stands there already is refused at once.
    UnfinishedFile page(files.page), json(files.json);
    const PersonReport report = ReportOf(source, code, author, now, work);
    Write(page, PageOf(report));
    Write(json, JsonOf(report));
    TellOfSource(source, [&](Database& database) {
        AuditExport(database, author, code, AuditValues().Add("pagina", files.page).Add("json", files.json));
    });
    FinishBoth(page, json);
    return files;
}

} // namespace kova::family::privacy
