#pragma once

#include "family/data/rows/find_by_key.hpp"

namespace kova::family {

/// What an envelope says of a customer, each part of the address by itself.
struct CustomerAddress {
    static constexpr const char* Table = "cliente";
    Key codigo = 0;
    std::string apelido, nome;
    /// 1 active, 2 inactive, 3 blocked, 4 deleted.
    int situacao = 0;
    std::string logradouro, numero, complemento, bairro, cidade, uf;
    /// Digits only.
    std::string cep;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("apelido", apelido);
        visit("nome", nome);
        visit("situacao", situacao);
        visit("logradouro", logradouro);
        visit("numero", numero);
        visit("complemento", complemento);
        visit("bairro", bairro);
        visit("cidade", cidade);
        visit("uf", uf);
        visit("cep", cep);
    }
};

} // namespace kova::family
