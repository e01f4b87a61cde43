#include "family/registers/customers/customers.hpp"
#include "family/csv/import_of.hpp"
#include "family/csv/registers/all_registers.hpp"
#include "family/data/stores/customer_store.hpp"
#include "family/registers/contacts/compared_channels.hpp"

#include <unordered_map>

namespace kova::family::csv {

namespace {

using family::ChannelRow;
using family::CustomerRow;
using family::registers::ChannelOfCustomer;
using family::registers::ComparableChannel;
using family::registers::CustomerColumns;
using family::registers::CustomerRecord;
using family::registers::KnownDocument;
namespace column = family::registers::customer_columns;

/// What a customer without a document is told apart from others by.
struct KnownName : CustomerRow {
    static constexpr const char* FoundBy = "nome_de_busca";

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("nome_de_busca", nomeDeBusca);
        visit("endereco_de_busca", enderecoDeBusca);
    }
};

using ChannelsByCustomer = std::unordered_map<Key, std::vector<ChannelRow>>;

ChannelsByCustomer FindChannels(family::Database& database, const std::set<Key>& customers)
{
    ChannelsByCustomer channels;
    family::SelectWhere<ChannelOfCustomer>(database, customers, [&](const ChannelOfCustomer& row) {
        channels[row.codigoDoCliente].push_back(row);
    });
    return channels;
}

class CustomerImport : public ImportOf<CustomerRecord> {
public:
    CustomerImport(family::Database& database, DateTime) : ImportOf(database, CustomerColumns()) { }

private:
    void Complete(CustomerRecord& record) const override { record.Complete(); }

    void LookUp(std::span<const CustomerRecord> records) override
    {
        std::set<std::string> documents, names;
        for (const CustomerRecord& record : records) {
            if (!record.documento.empty())
                documents.insert(record.documento);
            else if (CodeIn(record) == 0 && !record.nomeDeBusca.empty())
                names.insert(record.nomeDeBusca);
        }
        family::SelectWhere<KnownDocument>(GetDatabase(), documents, [this](const KnownDocument& known) {
            documents_.AddStored(known.document, known.code);
        });
        LookUpNames(names);
    }

    void LookUpNames(const std::set<std::string>& names)
    {
        std::vector<KnownName> namesakes;
        std::set<Key> codes;
        family::SelectWhere<KnownName>(GetDatabase(), names, [&](const KnownName& known) {
            namesakes.push_back(known);
            codes.insert(known.codigo);
        });
        ChannelsByCustomer channels = FindChannels(GetDatabase(), codes);
        for (const KnownName& known : namesakes)
            AddStored({known, channels[known.codigo]});
    }

    /// The name with each of the channels, or with the address where there is none. A document alone tells
    /// them apart, with whatever code; CheckRecord sees to it.
    std::vector<std::string> TraitsOf(const CustomerRecord& record) const override
    {
        if (!record.documento.empty())
            return {};
        if (record.channels.empty())
            return {record.nomeDeBusca + "\n\n" + record.enderecoDeBusca};
        std::vector<std::string> traits;
        for (const ChannelRow& channel : record.channels)
            traits.push_back(record.nomeDeBusca + "\n" + ComparableChannel(channel));
        return traits;
    }

    void CheckRecord(CustomerRecord& record, Line& line) override
    {
        if (const std::string why = family::registers::WrongPostalCode(record); !why.empty())
            line.Refuse(column::PostalCode, family::ShownPostalCode(record.cep), why);
        if (record.documento.empty())
            return;
        if (const std::string why = family::registers::WrongKindOfPerson(record); !why.empty())
            line.Refuse(column::Kind, record.tipoDePessoa, why);
        const auto place = documents_.Add(record.documento, line.Number());
        if (place && !LeavesOut(*place, line))
            line.Refuse(column::Document, record.documento,
                        "um cliente com este documento " + place->Told() + ".");
    }

    void WriteRecord(CustomerRecord& record, const family::Author& author) override
    {
        family::AddCustomer(GetDatabase(), record, record.channels, author);
    }

    Occurrences<std::string> documents_;
};

void ExportCustomers(family::Database& database, const FieldsSink& sink)
{
    ExportNames(CustomerColumns(), sink);
    family::SelectPages<CustomerRow>(database, [&](const std::vector<CustomerRow>& page) {
        std::set<Key> codes;
        for (const CustomerRow& row : page)
            codes.insert(row.codigo);
        ChannelsByCustomer channels = FindChannels(database, codes);
        for (const CustomerRow& row : page)
            ExportRecord(CustomerColumns(), {row, channels[row.codigo]}, sink);
    });
}

} // namespace

const Register CustomerRegister{
    "clientes",
    StartImport<CustomerImport>,
    ExportCustomers,
    CustomerRow::Table,
};

} // namespace kova::family::csv
