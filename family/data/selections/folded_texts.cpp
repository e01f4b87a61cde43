#include "family/data/selections/folded_texts.hpp"

#include <optional>

namespace kova::family {

FoldedTexts::FoldedTexts(Database& database, const std::vector<std::string>& tables, const char* selection,
                         Order order)
    : rows_(order),
      changes_(database, tables),
      readTexts_((database.Session().prepare << selection, soci::into(read_.key), soci::into(read_.text)))
{
}

/// The count is asked first: a change that comes in between is then seen at the next search.
const TextRows& FoldedTexts::Refreshed()
{
    changes_.ReadOn([this](std::optional<long long> since) {
        if (!since || !TakeChanges(rows_, *since))
            Read();
    });
    return rows_;
}

void FoldedTexts::Read()
{
    rows_.Clear();
    BeginReading();
    readTexts_.execute();
    while (readTexts_.fetch()) {
        Shape(read_);
        rows_.Add(read_);
    }
    rows_.Sort();
}

CustomerNames::CustomerNames(Database& database)
    : FoldedTexts(database, "cliente",
                  "select codigo, nomes_de_busca from cliente order by nome_de_busca, codigo")
{
}

CustomerAddresses::CustomerAddresses(Database& database)
    : FoldedTexts(database, "cliente", "select codigo, endereco_de_busca from cliente order by codigo")
{
}

AnimalNames::AnimalNames(Database& database)
    : FoldedTexts(
        database, "animal",
        "select codigo, nome_de_busca from animal where situacao = 1 order by nome_de_busca, codigo")
{
}

} // namespace kova::family
