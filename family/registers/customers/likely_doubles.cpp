#include "family/registers/customers/likely_doubles.hpp"

#include "family/business/clean_text.hpp"
#include "family/data/checks/documents.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/data/rows/select_where.hpp"
#include "family/data/selections/register_texts.hpp"
#include "family/registers/contacts/channel_texts.hpp"
#include "family/registers/contacts/compared_channels.hpp"
#include "family/registers/customers/animals.hpp"
#include "family/registers/customers/customer_registers.hpp"
#include "family/registers/customers/customers.hpp"
#include "family/registers/customers/merged_customer.hpp"
#include "family/registers/description/typed_values.hpp"

#include <algorithm>
#include <map>

namespace kova::family::registers {

namespace {

/// A customer's code by its folded name.
struct KnownCustomerName {
    static constexpr const char* Table = CustomerRow::Table;
    static constexpr const char* FoundBy = "nome_de_busca";
    Key code = 0;
    std::string folded;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", code);
        visit("nome_de_busca", folded);
    }
};

std::set<Key> CustomersNamed(Database& database, const std::string& folded)
{
    std::set<Key> codes;
    SelectWhere<KnownCustomerName>(database, std::set<std::string>{folded},
                                   [&](const KnownCustomerName& known) { codes.insert(known.code); });
    return codes;
}

std::string Folded(const std::string& typed) { return FoldText(CleanText(typed)); }

/// What is found, by code, with what it has in common.
class FoundDoubles {
public:
    /// `own` is never a double of itself.
    explicit FoundDoubles(Key own) : own_(own) { }

    void Add(Key key, std::string reason, bool bars = false)
    {
        if (key == own_)
            return;
        LikelyDouble& found = found_[key];
        found.key = key;
        found.bars |= bars;
        if (std::ranges::find(found.reasons, reason) == found.reasons.end())
            found.reasons.push_back(std::move(reason));
    }

    /// With their names, the first column of the register's list.
    std::vector<LikelyDouble> Shown(Database& database, const Register& of) const
    {
        std::vector<Key> keys;
        for (const auto& [key, found] : found_)
            keys.push_back(key);
        std::vector<LikelyDouble> doubles;
        for (const ListRow& row : of.Rows(database, keys)) {
            doubles.push_back(found_.at(row.key));
            doubles.back().shown = row.cells.front() + " (código " + std::to_string(row.key)
                + (row.active ? ")" : ", não está ativo)");
        }
        return doubles;
    }

private:
    const Key own_;
    std::map<Key, LikelyDouble> found_;
};

/// What customers are compared by.
struct CustomerTraits {
    std::string document, name;
    std::set<std::string> phones;

    explicit CustomerTraits(const Texts& texts)
    {
        const std::vector<FieldInfo>& fields = CustomerRegister().Fields();
        const auto text = [&](std::string_view label) { return texts.at(FieldNamed(fields, label)); };
        document = ReadDocument(CleanText(text(customer_columns::Document))).value_or("");
        name = Folded(text("Nome"));
        std::vector<ChannelRow> channels;
        ReadChannels(text("Canais"), channels);
        for (const ChannelRow& channel : channels)
            phones.insert(PhoneDigits(channel));
        phones.erase("");
    }

    /// Those of them that `other` has not.
    void Leave(const CustomerTraits& other)
    {
        if (document == other.document)
            document.clear();
        if (name == other.name)
            name.clear();
        for (const std::string& phone : other.phones)
            phones.erase(phone);
    }
};

void FindByDocument(Database& database, const std::string& document, FoundDoubles& found)
{
    if (document.empty())
        return;
    SelectWhere<KnownDocument>(database, std::set<std::string>{document}, [&](const KnownDocument& known) {
        found.Add(known.code, "o mesmo documento, " + ShownDocument(document), true);
    });
}

void FindByPhones(Database& database, const std::set<std::string>& phones, FoundDoubles& found)
{
    if (phones.empty())
        return;
    const std::vector<Key> candidates =
        CustomersWith(database, std::vector<std::string>(phones.begin(), phones.end()), 0, false);
    SelectWhere<ChannelOfCustomer>(
        database, std::set<Key>(candidates.begin(), candidates.end()), [&](const ChannelOfCustomer& channel) {
            if (phones.contains(PhoneDigits(channel)))
                found.Add(channel.codigoDoCliente, "o mesmo telefone, " + channel.canal);
        });
}

/// Customers of that name who have an animal of the same name as one of the customer's.
void FindByNames(Database& database, Key customer, const std::string& name, FoundDoubles& found)
{
    if (customer == 0 || name.empty())
        return;
    std::set<std::string> own;
    for (const AnimalRow& animal : AnimalsOf(database, customer))
        own.insert(animal.nomeDeBusca);
    if (own.empty())
        return;
    SelectWhere<AnimalOfCustomer>(
        database, CustomersNamed(database, name), [&](const AnimalOfCustomer& animal) {
            if (own.contains(animal.nomeDeBusca))
                found.Add(animal.codigoDoCliente, "o mesmo nome, e também um animal chamado " + animal.nome);
        });
}

} // namespace

std::vector<LikelyDouble> DoublesOfCustomer(Database& database, Key key, const Texts& before,
                                            const Texts& typed)
{
    CustomerTraits traits(typed);
    if (key != 0)
        traits.Leave(CustomerTraits(before));
    FoundDoubles found(key);
    FindByDocument(database, traits.document, found);
    FindByPhones(database, traits.phones, found);
    FindByNames(database, key, traits.name, found);
    return found.Shown(database, CustomerRegister());
}

std::vector<LikelyDouble> DoublesOfAnimal(Database& database, Key key, const Texts& before,
                                          const Texts& typed)
{
    const std::vector<FieldInfo>& fields = AnimalRegister().Fields();
    const std::size_t nameAt = FieldNamed(fields, "Nome"),
                      ownerAt = FieldNamed(fields, animal_columns::Customer);
    const std::string name = Folded(typed.at(nameAt));
    const Key owner = ReadWhole(CleanText(typed.at(ownerAt))).value_or(0);
    const bool isAsBefore =
        key != 0 && name == Folded(before.at(nameAt)) && typed.at(ownerAt) == before.at(ownerAt);
    const auto customer = FindCustomer(database, owner);
    if (isAsBefore || !customer)
        return {};
    FoundDoubles found(key);
    SelectWhere<AnimalOfCustomer>(
        database, CustomersNamed(database, customer->nomeDeBusca), [&](const AnimalOfCustomer& animal) {
            if (animal.nomeDeBusca != name)
                return;
            const bool isOwn = animal.codigoDoCliente == owner;
            found.Add(animal.codigo,
                      isOwn ? "o mesmo nome e o mesmo cliente"
                            : "o mesmo nome, e o cliente " + std::to_string(animal.codigoDoCliente)
                              + " também se chama " + customer->nome);
        });
    return found.Shown(database, AnimalRegister());
}

} // namespace kova::family::registers
