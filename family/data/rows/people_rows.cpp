#include "family/data/rows/people_rows.hpp"

#include "family/data/engine/fold_text.hpp"

namespace kova::family {

namespace {

/// No separator stands where a part is missing.
void Append(std::string& text, const char* separator, const std::string& part)
{
    if (!part.empty())
        text.append(text.empty() ? "" : separator).append(part);
}

std::string ComposeAddress(const CustomerRow& customer)
{
    std::string address = customer.logradouro;
    Append(address, ", ", customer.numero);
    for (const std::string* part : {&customer.complemento, &customer.bairro, &customer.cidade})
        Append(address, " - ", *part);
    Append(address, "/", customer.uf);
    return address;
}

std::string ComposeChannels(const std::vector<ChannelRow>& channels)
{
    std::string text;
    for (const ChannelRow& channel : channels) {
        if (!text.empty())
            text += "; ";
        text += channel.tipo + ": " + channel.canal;
    }
    return text;
}

} // namespace

std::string ShownPostalCode(const std::string& digits)
{
    return digits.size() == 8 ? digits.substr(0, 5) + "-" + digits.substr(5) : digits;
}

void CustomerRow::Compose(const std::vector<ChannelRow>& channels)
{
    enderecoCompleto = ComposeAddress(*this);
    enderecoCompletoComCEP = enderecoCompleto;
    Append(enderecoCompletoComCEP, " - ", cep.empty() ? cep : "CEP " + ShownPostalCode(cep));
    tiposECanais = ComposeChannels(channels);
    nomeDeBusca = FoldText(nome);
    // A line break keeps a search from finding a text that runs over two fields.
    nomesDeBusca = FoldText(apelido) + "\n" + nomeDeBusca;
    enderecoDeBusca = FoldText(enderecoCompletoComCEP);
}

} // namespace kova::family
