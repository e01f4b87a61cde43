#include "family/registers/customers/merged_customer.hpp"

#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/find_by_key.hpp"
#include "family/data/rows/select_where.hpp"
#include "family/registers/contacts/channel_texts.hpp"
#include "family/registers/contacts/compared_channels.hpp"
#include "family/registers/customers/customer_registers.hpp"

#include <algorithm>
#include <array>

namespace kova::family::registers {

namespace {

constexpr std::array<std::string_view, 7> AddressFields = {"Logradouro", "Número", "Complemento", "Bairro",
                                                           "Cidade",     "UF",     "CEP"};

bool IsOfAddress(const FieldInfo& field)
{
    return std::ranges::find(AddressFields, field.label) != AddressFields.end();
}

bool AreSame(const std::string& one, const std::string& other) { return FoldText(one) == FoldText(other); }

/// Looks at the fields of two customers one by one.
class FieldComparison {
public:
    explicit FieldComparison(CustomerMerge& merge)
        : merge_(merge), fields_(CustomerRegister().Fields()), isSameAddress_(AddressesAgree())
    {
    }

    void Run()
    {
        for (std::size_t at = 1; at < fields_.size(); ++at) {
            const std::string &kept = merge_.shown[at], &other = merge_.shownOfOther[at];
            if (fields_[at].kind == FieldKind::Channels)
                CompareChannels(at);
            else if (!IsEmpty(at, other) && !AreSame(kept, other))
                (IsTaken(at) ? merge_.filled : merge_.lost).push_back({at, kept, other});
        }
    }

private:
    bool AddressesAgree() const
    {
        for (std::size_t at = 0; at < fields_.size(); ++at) {
            const std::string &kept = merge_.shown[at], &other = merge_.shownOfOther[at];
            if (IsOfAddress(fields_[at]) && !kept.empty() && !other.empty() && !AreSame(kept, other))
                return false;
        }
        return true;
    }

    /// A mark that is not set says nothing.
    bool IsEmpty(std::size_t at, const std::string& text) const
    {
        return text.empty() || (fields_[at].kind == FieldKind::YesNo && text == "Não");
    }

    /// The kind of a person goes with the document.
    bool IsTaken(std::size_t at) const
    {
        const FieldInfo& field = fields_[at];
        if (field.label == customer_columns::Kind)
            return TakesDocument();
        return IsEmpty(at, merge_.shown[at]) && (!IsOfAddress(field) || isSameAddress_);
    }

    bool TakesDocument() const
    {
        const std::size_t at = FieldNamed(fields_, customer_columns::Document);
        return merge_.shown[at].empty() && !merge_.shownOfOther[at].empty();
    }

    void CompareChannels(std::size_t at)
    {
        std::vector<ChannelRow> kept, other;
        ReadChannels(merge_.shown[at], kept);
        ReadChannels(merge_.shownOfOther[at], other);
        const std::vector<ChannelRow> joined = JoinChannels(kept, other);
        if (joined.size() > kept.size())
            merge_.filled.push_back({at, merge_.shown[at], WriteChannels(joined)});
    }

    CustomerMerge& merge_;
    const std::vector<FieldInfo>& fields_;
    const bool isSameAddress_;
};

/// Copies a column of one row into another.
void CopyColumn(std::string_view column, CustomerRow from, CustomerRow& to)
{
    to.Columns([&](std::string_view name, auto& target) {
        if (name != column)
            return;
        from.Columns([&](std::string_view source, auto& value) {
            if constexpr (std::is_same_v<decltype(value), decltype(target)>) {
                if (source == column)
                    target = value;
            }
        });
    });
}

} // namespace

std::optional<CustomerRecord> FindCustomer(Database& database, Key key)
{
    const auto row = FindByKey<CustomerRow>(database, key);
    if (!row)
        return std::nullopt;
    CustomerRecord record{*row, {}};
    SelectWhere<ChannelOfCustomer>(database, std::set<Key>{key}, [&](const ChannelOfCustomer& channel) {
        record.channels.push_back(channel);
    });
    return record;
}

void CompareFields(CustomerMerge& merge) { FieldComparison(merge).Run(); }

void FillFields(const CustomerMerge& merge, const CustomerRecord& other, CustomerRecord& kept)
{
    const std::vector<FieldInfo>& fields = CustomerRegister().Fields();
    for (const ChangedField& filled : merge.filled) {
        if (fields[filled.field].kind == FieldKind::Channels)
            kept.channels = JoinChannels(kept.channels, other.channels);
        else
            for (const std::string& column : fields[filled.field].stored)
                CopyColumn(column, other, kept);
    }
    kept.Complete();
}

std::vector<AnimalRow> AnimalsOf(Database& database, Key customer)
{
    std::vector<AnimalRow> animals;
    SelectWhere<AnimalOfCustomer>(database, std::set<Key>{customer},
                                  [&](const AnimalOfCustomer& animal) { animals.push_back(animal); });
    return animals;
}

bool AreAlike(Database& database, const AnimalRow& one, const AnimalRow& other)
{
    if (one.nomeDeBusca != other.nomeDeBusca)
        return false;
    const auto breed = FindByKey<BreedRow>(database, one.codigoDaRaca);
    const auto otherBreed = FindByKey<BreedRow>(database, other.codigoDaRaca);
    return breed && otherBreed && breed->codigoDaEspecie == otherBreed->codigoDaEspecie;
}

} // namespace kova::family::registers
