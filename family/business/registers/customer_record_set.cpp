#include "family/business/registers/customer_record_set.hpp"

#include "family/business/kept_record_set.hpp"
#include "family/business/shown_values.hpp"

#include <algorithm>

namespace kova::family {

namespace {

/// As many as a search for one customer usually finds at most.
constexpr std::size_t RowsAtOnce = 20;

using Row = FoundCustomerOf<std::string_view>;

constexpr KeptField<FoundCustomerOf> Columns[] = {
    {"CodigoDoCliente", [](const Row& row) { return Value(static_cast<Double>(row.codigo)); }},
    {"ApelidoOuNomeFantasia", [](const Row& row) { return Value(row.apelido); }},
    {"NomeOuRazaoSocial", [](const Row& row) { return Value(row.nome); }},
    {"Situacao", [](const Row& row) { return Value(static_cast<Long>(row.situacao)); }},
    {"EnderecoCompleto", [](const Row& row) { return Value(row.enderecoCompleto); }},
    {"TiposECanaisDeComunicacao", [](const Row& row) { return Value(row.tiposECanais); }},
    {"VIP", [](const Row& row) { return Value(YesOrNo(row.vip != 0)); }},
    {"CategoriaDaCurvaABC", [](const Row& row) { return Value(row.categoriaDaCurvaABC); }},
};

} // namespace

CustomerRecordSet::CustomerRecordSet(std::shared_ptr<Database> database, std::vector<Key> codes)
    : PagedRecordSet(NamesOf<FoundCustomerOf>(Columns)),
      database_(std::move(database)),
      codes_(std::move(codes)),
      places_(codes_.size(), NotFetched)
{
    const std::size_t atOnce = std::min(RowsAtOnce, codes_.size());
    for (std::size_t row = 0; row < atOnce; ++row)
        RowAt(row);
}

const Row& CustomerRecordSet::RowAt(std::size_t row) const
{
    if (places_[row] == NotFetched) {
        FetchCustomer(*database_, codes_[row], fetched_);
        places_[row] = fetched_.rows.size() - 1;
    }
    return fetched_.rows[places_[row]];
}

Value CustomerRecordSet::CellAt(Long row, int field) const
{
    return Columns[field].read(RowAt(static_cast<std::size_t>(row)));
}

} // namespace kova::family
