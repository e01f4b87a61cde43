#include "family/data/checks/documents.hpp"
#include "family/registers/contacts/channel_texts.hpp"
#include "family/registers/contacts/postal_codes.hpp"
#include "family/registers/customers/customers.hpp"
#include "family/registers/description/column_kinds.hpp"

#include <utility>

namespace kova::family::registers {

namespace {

using Cols = ColumnsOf<CustomerRecord>;
using Col = Column<CustomerRecord>;

constexpr Choice Situations[] = {{1, "Ativo"}, {2, "Inativo"}, {3, "Bloqueado"}, {4, "Excluído"}};
constexpr std::string_view Kinds[] = {"PF", "PJ"};
constexpr std::string_view Categories[] = {"A", "B", "C"};
constexpr std::string_view States[] = {"AC", "AL", "AM", "AP", "BA", "CE", "DF", "ES", "GO",
                                       "MA", "MG", "MS", "MT", "PA", "PB", "PE", "PI", "PR",
                                       "RJ", "RN", "RO", "RR", "RS", "SC", "SE", "SP", "TO"};

Col Document()
{
    Col column =
        Cols::InMember(customer_columns::Document, FieldKind::Document, 18, &CustomerRecord::documento);
    column.read = [](const std::string& text, CustomerRecord& record) -> std::string {
        const auto document = ReadDocument(text);
        if (!document)
            return "não é um CPF nem um CNPJ válido: confira os dígitos.";
        record.documento = *document;
        return {};
    };
    // With its punctuation no spreadsheet takes it for a number, without the zeros before it.
    column.write = [](const CustomerRecord& record) { return ShownDocument(record.documento); };
    return column;
}

Col State()
{
    Col column = Cols::OneOf("UF", &CustomerRecord::uf, States, "não é a sigla de um estado.");
    column.field.kind = FieldKind::State;
    return column;
}

Col PostalCode()
{
    Col column = Cols::InMember(customer_columns::PostalCode, FieldKind::PostalCode, 9, &CustomerRecord::cep);
    column.read = [](const std::string& text, CustomerRecord& record) -> std::string {
        const auto digits = ReadPostalCode(text);
        if (!digits)
            return "não é um CEP: são oito dígitos.";
        if (StateOfPostalCode(*digits).empty())
            return "não existe: os CEPs começam em 01000-000.";
        record.cep = *digits;
        return {};
    };
    column.write = [](const CustomerRecord& record) { return ShownPostalCode(record.cep); };
    return column;
}

Col Channels()
{
    Col column = Cols::InMember("Canais", FieldKind::Channels, 1000, &CustomerRecord::channels);
    column.field.stored = {"tipos_e_canais"};
    column.read = [](const std::string& text, CustomerRecord& record) {
        return ReadChannels(text, record.channels, record.formerChannels);
    };
    column.clear = [](CustomerRecord& record) { record.formerChannels = std::exchange(record.channels, {}); };
    column.write = [](const CustomerRecord& record) { return WriteChannels(record.channels); };
    return column;
}

/// A column that is read only: its text is one more channel of that kind.
Col Channel(const char* kind)
{
    Col column;
    column.field.label = kind;
    column.read = [=](const std::string& text, CustomerRecord& record) {
        return AddChannel(kind, text, record.channels);
    };
    return column;
}

} // namespace

const Columns<CustomerRecord>& CustomerColumns()
{
    static const Columns<CustomerRecord> columns = {
        Cols::Code("Código", &CustomerRecord::codigo),
        Helped(
            "Vazio, segue do documento; sem documento é PF.",
            Cols::OneOf(customer_columns::Kind, &CustomerRecord::tipoDePessoa, Kinds, "deve ser PF ou PJ.")),
        Required(Cols::Text("Nome", &CustomerRecord::nome, 100)),
        Helped("Como o cliente aparece na agenda; de uma empresa, o nome fantasia.",
               Cols::Text("Apelido", &CustomerRecord::apelido, 100)),
        Helped("CPF ou CNPJ, com ou sem pontuação.", Unique(Document())),
        Helped("Um cliente que tem agendamentos fica inativo em vez de ser excluído.",
               Cols::OneOf("Situação", &CustomerRecord::situacao, Situations)),
        Cols::YesNo("VIP", &CustomerRecord::vip),
        Cols::OneOf("Curva ABC", &CustomerRecord::categoriaDaCurvaABC, Categories, "deve ser A, B ou C."),
        Cols::Text("Logradouro", &CustomerRecord::logradouro, 100),
        Cols::Text("Número", &CustomerRecord::numero, 20),
        Cols::Text("Complemento", &CustomerRecord::complemento, 50),
        Cols::Text("Bairro", &CustomerRecord::bairro, 50),
        Cols::Text("Cidade", &CustomerRecord::cidade, 50),
        State(),
        PostalCode(),
        Helped("Como \"Celular: (11) 91234-5678; E-mail: ze@example.com\".", Channels()),
        Channel("Celular"),
        Channel("Telefone"),
        Channel("E-mail"),
    };
    return columns;
}

std::string WrongKindOfPerson(const CustomerRecord& record)
{
    if (record.documento.empty() || record.tipoDePessoa.empty())
        return {};
    const char* kind = IsCompanyDocument(record.documento) ? "PJ" : "PF";
    if (record.tipoDePessoa == kind)
        return {};
    return "o documento " + record.documento + " é de " + kind + ".";
}

std::string WrongPostalCode(const CustomerRecord& record)
{
    const std::string_view state = StateOfPostalCode(record.cep);
    if (record.uf.empty() || state.empty() || state == record.uf)
        return {};
    return "o CEP " + ShownPostalCode(record.cep) + " é de " + std::string(state) + ", e não de " + record.uf
        + ".";
}

void CustomerRecord::Complete()
{
    if (tipoDePessoa.empty())
        tipoDePessoa = IsCompanyDocument(documento) ? "PJ" : "PF";
    Compose(channels);
}

} // namespace kova::family::registers
