#include "agenda/contracts/text.hpp"
#include "family/data/checks/documents.hpp"
#include "family/data/stores/customer_store.hpp"
#include "tools/agenda-data/csv/channels.hpp"
#include "tools/agenda-data/csv/import_of.hpp"

#include <algorithm>
#include <iterator>
#include <unordered_map>

namespace kova::data {

namespace {

using family::ChannelRow;
using family::CustomerRow;

/// A customer with its contact channels.
struct CustomerRecord : CustomerRow {
    std::vector<ChannelRow> channels;
};
using Cols = ColumnsOf<CustomerRecord>;
using Col = Column<CustomerRecord>;

constexpr Choice Situations[] = {{1, "Ativo"}, {2, "Inativo"}, {3, "Bloqueado"}, {4, "Excluído"}};
constexpr const char* DocumentColumn = "Documento";
constexpr const char* KindColumn = "Tipo de pessoa";

/// A column that is read only: its cell is one more channel of that kind.
Col Channel(const char* kind)
{
    return {kind,
            [=](const std::string& cell, CustomerRecord& record) {
                return AddChannel(kind, cell, record.channels);
            },
            {}};
}

/// An upper case word out of a few.
Col Letters(const char* name, std::string CustomerRow::*member, std::string_view words, const char* wrong)
{
    return {name,
            [=](const std::string& cell, CustomerRecord& record) {
                record.*member = UpperCase(cell);
                const bool known = words.find(" " + record.*member + " ") != std::string_view::npos;
                return known ? std::string() : std::string(wrong);
            },
            [=](const CustomerRecord& record) { return record.*member; }};
}

std::string ReadDocumentCell(const std::string& cell, CustomerRecord& record)
{
    const auto document = ReadDocument(cell);
    if (!document)
        return "não é um CPF nem um CNPJ válido: confira os dígitos.";
    record.documento = *document;
    return {};
}

std::string ReadPostalCodeCell(const std::string& cell, CustomerRecord& record)
{
    const auto digits = ReadPostalCode(cell);
    if (!digits)
        return "não é um CEP: são oito dígitos.";
    record.cep = *digits;
    return {};
}

const Columns<CustomerRecord>& CustomerColumns()
{
    static const Columns<CustomerRecord> columns = {
        Cols::Code("Código", &CustomerRow::codigo),
        Letters(KindColumn, &CustomerRow::tipoDePessoa, " PF PJ ", "deve ser PF ou PJ."),
        Required(Cols::Text("Nome", &CustomerRow::nome, 100)),
        Cols::Text("Apelido", &CustomerRow::apelido, 100),
        {DocumentColumn, ReadDocumentCell, [](const CustomerRecord& record) { return record.documento; }},
        Cols::OneOf("Situação", &CustomerRow::situacao, Situations),
        Cols::YesNo("VIP", &CustomerRow::vip),
        Letters("Curva ABC", &CustomerRow::categoriaDaCurvaABC, " A B C ", "deve ser A, B ou C."),
        Cols::Text("Logradouro", &CustomerRow::logradouro, 100),
        Cols::Text("Número", &CustomerRow::numero, 20),
        Cols::Text("Complemento", &CustomerRow::complemento, 50),
        Cols::Text("Bairro", &CustomerRow::bairro, 50),
        Cols::Text("Cidade", &CustomerRow::cidade, 50),
        Letters("UF", &CustomerRow::uf,
                " AC AL AM AP BA CE DF ES GO MA MG MS MT PA PB PE PI PR RJ RN RO RR RS SC SE SP TO ",
                "não é a sigla de um estado."),
        {"CEP", ReadPostalCodeCell, [](const CustomerRecord& record) { return record.cep; }},
        {"Canais",
         [](const std::string& cell, CustomerRecord& record) { return ReadChannels(cell, record.channels); },
         [](const CustomerRecord& record) { return WriteChannels(record.channels); }},
        Channel("Celular"),
        Channel("Telefone"),
        Channel("E-mail"),
    };
    return columns;
}

struct KnownDocument {
    static constexpr const char* Table = CustomerRow::Table;
    static constexpr const char* FoundBy = "documento";
    Key code = 0;
    std::string document;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", code);
        visit("documento", document);
    }
};

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

struct ChannelOfCustomer : ChannelRow {
    static constexpr const char* FoundBy = "codigo_do_cliente";
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

/// A number is the same however it is written.
std::string SoughtChannel(const ChannelRow& channel)
{
    std::string digits;
    std::ranges::copy_if(channel.canal, std::back_inserter(digits),
                         [](char letter) { return letter >= '0' && letter <= '9'; });
    const bool isNumber = channel.canal.find('@') == std::string::npos && digits.size() > 5;
    return isNumber ? digits : family::FoldText(channel.canal);
}

class CustomerImport : public ImportOf<CustomerRecord> {
public:
    CustomerImport(family::Database& database, DateTime) : ImportOf(database, CustomerColumns()) { }

private:
    void Complete(CustomerRecord& record) const override { record.Compose(record.channels); }

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
            traits.push_back(record.nomeDeBusca + "\n" + SoughtChannel(channel));
        return traits;
    }

    void CheckRecord(CustomerRecord& record, Line& line) override
    {
        if (record.documento.empty())
            return;
        const char* kind = KindOf(record);
        if (!record.tipoDePessoa.empty() && record.tipoDePessoa != kind)
            line.Refuse(KindColumn, record.tipoDePessoa,
                        "o documento " + record.documento + " é de " + kind + ".");
        if (const auto place = documents_.Add(record.documento, line.Number()))
            line.Refuse(DocumentColumn, record.documento,
                        "um cliente com este documento " + place->Told() + ".");
    }

    void WriteRecord(CustomerRecord& record, const family::Author& author) override
    {
        if (record.tipoDePessoa.empty())
            record.tipoDePessoa = KindOf(record);
        family::AddCustomer(GetDatabase(), record, record.channels, author);
    }

    static const char* KindOf(const CustomerRow& row)
    {
        return family::IsCompanyDocument(row.documento) ? "PJ" : "PF";
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

} // namespace kova::data
