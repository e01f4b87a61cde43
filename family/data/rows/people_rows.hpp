#pragma once

#include "family/data/rows/rows.hpp"

#include <vector>

namespace kova::family {

struct ChannelRow {
    static constexpr const char* Table = "canal_de_comunicacao";
    Key codigo = 0, codigoDoCliente = 0;
    std::string tipo, canal;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("codigo_do_cliente", codigoDoCliente);
        visit("tipo", tipo);
        visit("canal", canal);
    }
};

struct CustomerRow {
    static constexpr const char* Table = "cliente";
    Key codigo = 0;
    /// "PF" or "PJ"; `documento` is its CPF or CNPJ without punctuation, letters in upper case.
    std::string tipoDePessoa, apelido, nome, documento;
    int situacao = 1;
    int vip = 0;
    std::string categoriaDaCurvaABC, logradouro, numero, complemento, bairro, cidade, uf;
    /// Digits only.
    std::string cep;
    /// Composed by Compose. The last three are folded texts: the name; nickname and name with a line break
    /// between them; the address with its postal code.
    std::string enderecoCompleto, enderecoCompletoComCEP, tiposECanais;
    std::string nomeDeBusca, nomesDeBusca, enderecoDeBusca;

    /// Fills the columns that follow from the others. WriteCustomer does it.
    void Compose(const std::vector<ChannelRow>& channels);

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("tipo_de_pessoa", tipoDePessoa);
        visit("apelido", apelido);
        visit("nome", nome);
        visit("documento", documento);
        visit("situacao", situacao);
        visit("vip", vip);
        visit("categoria_da_curva_abc", categoriaDaCurvaABC);
        visit("logradouro", logradouro);
        visit("numero", numero);
        visit("complemento", complemento);
        visit("bairro", bairro);
        visit("cidade", cidade);
        visit("uf", uf);
        visit("cep", cep);
        visit("endereco_completo", enderecoCompleto);
        visit("endereco_completo_com_cep", enderecoCompletoComCEP);
        visit("tipos_e_canais", tiposECanais);
        visit("nome_de_busca", nomeDeBusca);
        visit("nomes_de_busca", nomesDeBusca);
        visit("endereco_de_busca", enderecoDeBusca);
    }
};

/// "01234-567"; a text of another length as it stands.
std::string ShownPostalCode(const std::string& digits);

struct AnimalRow {
    static constexpr const char* Table = "animal";
    Key codigo = 0, codigoDoCliente = 0;
    /// `sexo` is "M" or "F".
    std::string nome, sexo;
    Key codigoDaRaca = 0;
    /// 1 "Pequeno" to 4 "Gigante".
    int porte = 1;
    std::string cor;
    Nullable<std::string> microchip, observacao;
    int situacao = 1;
    std::string nomeDeBusca;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("codigo_do_cliente", codigoDoCliente);
        visit("nome", nome);
        visit("sexo", sexo);
        visit("codigo_da_raca", codigoDaRaca);
        visit("porte", porte);
        visit("cor", cor);
        visit("microchip", microchip);
        visit("observacao", observacao);
        visit("situacao", situacao);
        visit("nome_de_busca", nomeDeBusca);
    }
};

} // namespace kova::family
