#include "tools/agenda-data/commands.hpp"

#include "family/data/data_source.hpp"
#include "family/data/store_check.hpp"
#include "family/demo/shop.hpp"
#include "tools/agenda-data/command_line.hpp"

namespace kova::data {

namespace {

constexpr const char* Help = R"(agenda-data: administração dos dados da agenda

Uso:
  agenda-data demo ARQUIVO [--date dd/mm/aaaa]
      cria a loja de demonstração, com agendamentos em torno da data (padrão: hoje)
  agenda-data generate ARQUIVO [--customers N] [--appointments N] [--date dd/mm/aaaa]
      cria uma loja grande para medições (padrão: 50000 clientes e 1000000 agendamentos)
  agenda-data check ARQUIVO
      verifica se o arquivo pode ser aberto e se está íntegro, e conta o que contém
  agenda-data --help
  agenda-data --version

Um arquivo que já existe nunca é substituído. A mesma data e os mesmos números dão sempre o
mesmo conteúdo.

Resultado: 0 concluído; 1 os dados não podem ser lidos ou gravados; 2 linha de comando incorreta.
)";

void Create(const Options& options, const family::ShopPlan& plan, std::ostream& output)
{
    family::CreateShop(options.file, plan);
    output << "Banco de dados criado: " << options.file << "\n";
}

int Check(const std::string& file, std::ostream& output, std::ostream& error)
{
    const family::StoreReport report = family::CheckStore(file);
    for (const family::TableCount& table : report.tables)
        output << table.name << ": " << table.rows << "\n";
    output << "versão do esquema: " << report.version << "\n";
    for (const std::string& problem : report.problems)
        error << problem << "\n";
    if (!report.problems.empty())
        return 1;
    output << "O banco de dados está íntegro.\n";
    return 0;
}

int Carry(const Options& options, std::ostream& output, std::ostream& error)
{
    switch (options.command) {
    case Command::Help: output << Help; break;
    case Command::Version: output << "agenda-data " KOVARIS_VERSION "\n"; break;
    case Command::Demo: Create(options, family::DemonstrationPlan(options.date), output); break;
    case Command::Generate:
        Create(options, family::MeasuringPlan(options.date, options.customers, options.appointments), output);
        break;
    case Command::Check: return Check(options.file, output, error);
    }
    return 0;
}

} // namespace

int Run(std::span<const char* const> arguments, Date today, std::ostream& output, std::ostream& error)
{
    try {
        return Carry(ParseCommandLine(arguments, today), output, error);
    } catch (const UsageError& usage) {
        error << "agenda-data: " << usage.what() << "\n" << Help;
        return 2;
    } catch (const std::exception& failure) {
        error << "agenda-data: " << failure.what() << "\n";
        return 1;
    }
}

} // namespace kova::data
