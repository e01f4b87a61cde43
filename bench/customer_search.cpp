// Search of customers by a part of their names through the business component, called by name, against a
// look at the bare folded names in memory. Usage: bench_customer_search DATABASE

#include "bench/data_host.hpp"
#include "bench/measure.hpp"
#include "family/business/registers/customers.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/sources/shared_database.hpp"

#include <algorithm>
#include <array>
#include <iostream>
#include <stdexcept>

namespace kova::bench {

namespace {

constexpr int Rounds = 31;
constexpr double SearchLimit = 2;

/// What a person types who looks for one customer: a first name, a surname, parts of both, nobody.
constexpr std::array SearchTexts = {"zacarias",  "peçanha",       "josé antônio", "ana clara m",
                                    "Érica",     "vasconcelos a", "maria josé g", "ximenes",
                                    "lívia que", "wanderley"};
/// In the names of many customers: the most that a search has to bring.
constexpr std::array FrequentTexts = {"mar", "ta", "z"};

struct BareName {
    std::string folded;
    long long code = 0;
};

/// Nickname and name of every customer, in the order in which a search answers.
std::vector<BareName> ReadBareNames(const std::string& path)
{
    std::vector<BareName> names;
    BareName name;
    soci::statement statement =
        (family::SharedDatabase(path)->Session().prepare
             << "select nomes_de_busca, codigo from cliente order by nome_de_busca, codigo",
         soci::into(name.folded), soci::into(name.code));
    statement.execute();
    while (statement.fetch())
        names.push_back(name);
    return names;
}

std::vector<long long> SearchBare(const std::vector<BareName>& names, const char* text)
{
    const std::string folded = family::FoldText(text);
    std::vector<long long> codes;
    for (const BareName& name : names) {
        if (name.folded.find(folded) != std::string::npos)
            codes.push_back(name.code);
    }
    return codes;
}

RecordSetRef SearchByName(Component& customers, const char* text)
{
    const Value status = customers.Call(
        "Selecionar", {Long{2}, Integer{0}, Long{0}, text, "", Double{0}, "", "", "", Double{0}, ""});
    if (status.ToInteger() != 0)
        throw std::runtime_error(customers.Get("DescricaoDoErro").ToText());
    return customers.Get("ResultadoDaSelecaoEmRecordSet").ToObject<RecordSet>();
}

void RequireSame(Component& customers, const std::vector<BareName>& names, const char* text)
{
    std::vector<long long> codes;
    for (const RecordSetRef found = SearchByName(customers, text); !found->Eof(); found->MoveNext())
        codes.push_back(found->Field("CodigoDoCliente").ToLong());
    if (codes != SearchBare(names, text))
        throw std::runtime_error(std::string("the two do not find the same customers with ") + text);
}

std::string InMilliseconds(double value)
{
    char text[40];
    std::snprintf(text, sizeof text, "%.1f ms", value);
    return text;
}

/// A search before which a customer was changed, so that the names have to be read anew.
double SearchAfterAChange(Component& customers, const std::string& path)
{
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        family::SharedDatabase(path)->Session()
            << "update contador_de_alteracoes set alteracoes = alteracoes + 1 where tabela = 'cliente'";
        times.push_back(Milliseconds([&] { SearchByName(customers, SearchTexts.front()); }));
    }
    return Median(std::move(times));
}

/// What a caller who reads every field of every row adds to the search.
double ReadAll(Component& customers, const char* text)
{
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        const RecordSetRef found = SearchByName(customers, text);
        times.push_back(Milliseconds([&] {
            for (; !found->Eof(); found->MoveNext())
                for (int field = 0; field < found->FieldCount(); ++field)
                    found->Field(field);
        }));
    }
    return Median(std::move(times));
}

void PrintFrequent(Component& customers, const std::vector<BareName>& names)
{
    for (const char* text : FrequentTexts) {
        RequireSame(customers, names, text);
        std::size_t rows = 0;
        const Comparison comparison = Alternate(
            Rounds, [&] { rows += static_cast<std::size_t>(SearchByName(customers, text)->RecordCount()); },
            [&] { rows += SearchBare(names, text).size(); });
        PrintNote(std::string("(g) \"") + text + "\": " + std::to_string(SearchBare(names, text).size())
                  + " found in " + InMilliseconds(comparison.measured) + ", floor "
                  + InMilliseconds(comparison.floor) + "; reading every field of all rows "
                  + InMilliseconds(ReadAll(customers, text)) + " more" + (rows == 0 ? " (none)" : ""));
    }
}

void Measure(const std::string& path)
{
    DataHost host(path);
    family::Customers customers(host);
    const std::vector<BareName> names = ReadBareNames(path);
    std::size_t rows = 0;
    for (const char* text : SearchTexts) {
        RequireSame(customers, names, text);
        rows += SearchBare(names, text).size();
    }
    std::size_t sum = 0;
    const auto byName = [&] {
        for (const char* text : SearchTexts)
            sum += static_cast<std::size_t>(SearchByName(customers, text)->RecordCount());
    };
    const auto bare = [&] {
        for (const char* text : SearchTexts)
            sum += SearchBare(names, text).size();
    };
    PrintLine("(g) customers by name, 10 searches", Alternate(Rounds, byName, bare), "ms", SearchLimit);
    PrintNote("(g) " + std::to_string(names.size()) + " customers, " + std::to_string(rows)
              + " found in 10 searches" + (sum == 0 ? " (none)" : ""));
    PrintFrequent(customers, names);
    PrintNote("(g) a search that has to read the names first: "
              + InMilliseconds(SearchAfterAChange(customers, path)));
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    if (count != 2) {
        std::cerr << "usage: bench_customer_search DATABASE" << std::endl;
        return 2;
    }
    try {
        kova::bench::Measure(words[1]);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << "bench_customer_search: " << failure.what() << std::endl;
        return 1;
    }
}
