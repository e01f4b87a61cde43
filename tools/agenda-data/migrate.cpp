#include "family/data/sources/data_source.hpp"
#include "family/data/sources/file_source.hpp"
#include "system/path_text.hpp"
#include "tools/agenda-data/commands.hpp"

namespace kova::data {

namespace {

int VersionOf(const std::string& source)
{
    return family::StoredVersion(family::OpenForReading(source)->Session());
}

void TellCopy(const std::string& source, int version, std::ostream& output)
{
    const std::string copy = family::BackupName(source, version);
    if (std::filesystem::exists(system::PathOf(copy)))
        output << "Cópia de antes da atualização: " << copy << "\n";
}

int Run(const Call& call, Surroundings& surroundings)
{
    const std::string& source = call.Operand(0);
    const int before = VersionOf(source);
    const int after = family::StoredVersion(family::OpenDatabase(source)->Session());
    if (before == after) {
        surroundings.output << "O banco de dados já está na versão " << after << ".\n";
        return 0;
    }
    surroundings.output << "Banco de dados atualizado da versão " << before << " para a versão " << after
                        << ".\n";
    TellCopy(source, after, surroundings.output);
    return 0;
}

} // namespace

const Command MigrateCommand{
    {"migrate", "Atualiza o banco para a versão deste programa, depois de o copiar.", {"BANCO"}},
    Run,
};

} // namespace kova::data
