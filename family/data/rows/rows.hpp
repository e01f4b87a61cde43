#pragma once

#include "family/data/engine/key.hpp"
#include "family/data/engine/nullable.hpp"

#include <string>

/// The tables' rows as plain structs. Each lists its columns once, in Columns: an insertion binds them
/// from there. Keys are given by the caller.
namespace kova::family {

struct CompanyRow {
    static constexpr const char* Table = "empresa";
    Key codigo = 0;
    std::string nomeFantasia, razaoSocial, cnpj, endereco, telefone;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("nome_fantasia", nomeFantasia);
        visit("razao_social", razaoSocial);
        visit("cnpj", cnpj);
        visit("endereco", endereco);
        visit("telefone", telefone);
    }
};

struct UserRow {
    static constexpr const char* Table = "usuario";
    Key codigo = 0;
    std::string nome;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("nome", nome);
    }
};

struct ServiceTypeRow {
    static constexpr const char* Table = "tipo_de_servico";
    Key numero = 0;
    std::string nome, nomeDeBusca;
    int situacao = 1;

    template <class Visit> void Columns(Visit visit)
    {
        visit("numero", numero);
        visit("nome", nome);
        visit("nome_de_busca", nomeDeBusca);
        visit("situacao", situacao);
    }
};

struct ServiceRow {
    static constexpr const char* Table = "servico";
    Key codigo = 0;
    std::string nome, nomeDeBusca, descricao;
    Key numeroDoTipo = 0;
    int duracaoEmMinutos = 0;
    Key precoEmCentavos = 0, custoEmCentavos = 0;
    Nullable<int> quantidadeDeSessoes;
    int situacao = 1;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("nome", nome);
        visit("nome_de_busca", nomeDeBusca);
        visit("descricao", descricao);
        visit("numero_do_tipo_de_servico", numeroDoTipo);
        visit("duracao_em_minutos", duracaoEmMinutos);
        visit("preco_em_centavos", precoEmCentavos);
        visit("custo_em_centavos", custoEmCentavos);
        visit("quantidade_de_sessoes", quantidadeDeSessoes);
        visit("situacao", situacao);
    }
};

struct EmployeeRow {
    static constexpr const char* Table = "funcionario";
    Key codigo = 0;
    std::string apelido, nome, nomeDeBusca;
    int agendamentosSimultaneos = 1;
    int situacao = 1;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("apelido", apelido);
        visit("nome", nome);
        visit("nome_de_busca", nomeDeBusca);
        visit("agendamentos_simultaneos", agendamentosSimultaneos);
        visit("situacao", situacao);
    }
};

struct SpeciesRow {
    static constexpr const char* Table = "especie";
    Key codigo = 0;
    std::string nome, nomeDeBusca;
    int situacao = 1;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("nome", nome);
        visit("nome_de_busca", nomeDeBusca);
        visit("situacao", situacao);
    }
};

struct BreedRow {
    static constexpr const char* Table = "raca";
    Key codigo = 0, codigoDaEspecie = 0;
    std::string nome, nomeDeBusca;
    int situacao = 1;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("codigo_da_especie", codigoDaEspecie);
        visit("nome", nome);
        visit("nome_de_busca", nomeDeBusca);
        visit("situacao", situacao);
    }
};

/// Either `dia` and `mes`, for every year, or `data`.
struct HolidayRow {
    static constexpr const char* Table = "feriado";
    Key codigo = 0;
    std::string nome;
    Nullable<int> dia, mes;
    Nullable<std::string> data;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("nome", nome);
        visit("dia", dia);
        visit("mes", mes);
        visit("data", data);
    }
};

} // namespace kova::family
