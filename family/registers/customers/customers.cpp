#include "family/registers/customers/customers.hpp"

#include "family/data/selections/register_texts.hpp"
#include "family/data/stores/customer_store.hpp"
#include "family/registers/contacts/channel_texts.hpp"
#include "family/registers/customers/customer_registers.hpp"
#include "family/registers/customers/likely_doubles.hpp"
#include "family/registers/customers/related_lists.hpp"
#include "family/registers/description/register_of.hpp"
#include "family/registers/description/typed_values.hpp"

namespace kova::family::registers {

namespace {

/// A statement for many customers takes several times as long for one.
struct ChannelOfOne : ChannelOfCustomer {
    static constexpr std::size_t ValuesAtOnce = 1;
};

class Customers : public RegisterOf<CustomerRecord> {
public:
    Customers()
        : RegisterOf(
            {"clientes", "Clientes", "cliente"}, CustomerColumns(),
            ShownColumns(CustomerColumns(),
                         {"Nome", "Apelido", customer_columns::Document, "Canais", "Situação", "Código"}))
    {
    }

private:
    std::vector<Key> FindRows(Database& database, const std::string& text, Listed listed) const override
    {
        const ListSearch sought(text);
        return CustomersWith(database, sought.Parts(), sought.Code().ValueOr(0), listed == Listed::Active);
    }

    bool IsJudgedAmong(std::size_t field) const override
    {
        return field == FieldNamed(Fields(), customer_columns::Document);
    }

    std::span<const RelatedList* const> Related() const override
    {
        static const RelatedList* const lists[] = {&CustomerAppointments(), &CustomerPackages()};
        return lists;
    }

    std::vector<LikelyDouble> LikelyDoubles(Database& database, Key key, const Texts& before,
                                            const Texts& typed) const override
    {
        return DoublesOfCustomer(database, key, before, typed);
    }

    void Load(Database& database, std::span<CustomerRecord> records) const override
    {
        std::unordered_map<Key, CustomerRecord*> byCode;
        std::set<Key> codes;
        for (CustomerRecord& record : records) {
            byCode[record.codigo] = &record;
            codes.insert(record.codigo);
        }
        const auto keep = [&](const ChannelRow& channel) {
            byCode[channel.codigoDoCliente]->channels.push_back(channel);
        };
        if (codes.size() == 1)
            SelectWhere<ChannelOfOne>(database, codes, keep);
        else
            SelectWhere<ChannelOfCustomer>(database, codes, keep);
    }

    /// The audit keeps the channels as lists show them.
    void LoadFormer(Database&, CustomerRecord& record) const override
    {
        CustomerRow shown = record;
        shown.Compose(record.channels);
        if (shown.tiposECanais != record.tiposECanais)
            record.channels = ShownChannels(record.tiposECanais);
    }

    void CheckRecord(const Among& among, const CustomerRecord* stored, CustomerRecord& record,
                     Refusals& refusals) const override
    {
        if (std::string why = WrongKindOfPerson(record); !why.empty())
            refusals.Add(customer_columns::Kind, std::move(why));
        CheckPostalCode(stored, record, refusals);
        record.Complete();
        const bool isNew = !stored || stored->documento != record.documento;
        if (!record.documento.empty() && isNew)
            CheckDocument(among, record, refusals);
    }

    void JudgeRecord(const CustomerRecord& record, Refusals& refusals) const override
    {
        if (std::string why = WrongKindOfPerson(record); !why.empty())
            refusals.Add(customer_columns::Kind, std::move(why));
        CheckPostalCode(nullptr, record, refusals);
    }

    static void CheckPostalCode(const CustomerRecord* stored, const CustomerRecord& record,
                                Refusals& refusals)
    {
        if (stored && stored->cep == record.cep && stored->uf == record.uf)
            return;
        if (std::string why = WrongPostalCode(record); !why.empty())
            refusals.Add(customer_columns::PostalCode, std::move(why));
    }

    void CheckDocument(const Among& among, const CustomerRecord& record, Refusals& refusals) const
    {
        SelectWhere<KnownDocument>(
            among, std::set<std::string>{record.documento}, [&](const KnownDocument& known) {
                if (known.code != record.codigo && !GivesUp(among, known))
                    refusals.Add(customer_columns::Document,
                                 "o cliente " + std::to_string(known.code) + " já tem este documento.");
            });
    }

    /// Whether that customer is written together with the record, and has another document then.
    bool GivesUp(const Among& among, const KnownDocument& known) const
    {
        const auto toBe = among.rows.find(known.code);
        if (toBe == among.rows.end())
            return false;
        const std::string& text = toBe->second.at(FieldNamed(Fields(), customer_columns::Document));
        return ReadDocument(CleanText(text)) != known.document;
    }

    Key WriteRecord(Database& database, const CustomerRecord* stored, CustomerRecord& record,
                    const Author& author) const override
    {
        if (!stored)
            return AddCustomer(database, record, record.channels, author);
        if (stored->tiposECanais != record.tiposECanais) {
            RemoveOwn(database, std::span(&record.codigo, 1));
            for (ChannelRow channel : record.channels) {
                channel.codigoDoCliente = record.codigo;
                InsertNew(database, channel);
            }
        }
        return RegisterOf::WriteRecord(database, stored, record, author);
    }

    const char* OwnTable() const override { return ChannelRow::Table; }
    void RemoveOwn(Database& database, std::span<const Key> keys) const override
    {
        DeleteWhere(database, ChannelRow::Table, ChannelOfCustomer::FoundBy, keys);
    }
    bool AreRemovedTogether() const override { return true; }
    const char* BookedBy() const override { return "codigo_do_cliente"; }
};

} // namespace

const Register& CustomerRegister() { return Only<Customers>(); }

} // namespace kova::family::registers
