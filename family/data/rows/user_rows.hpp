#pragma once

#include "family/data/engine/key.hpp"
#include "family/data/engine/nullable.hpp"

#include <string>

/// The rows that tell who may do what.
namespace kova::family {

struct RoleRow {
    static constexpr const char* Table = "papel";
    Key codigo = 0;
    std::string nome;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("nome", nome);
    }
};

/// Whoever has the role may do it.
struct RoleRightRow {
    static constexpr const char* Table = "papel_direito";
    Key codigo = 0, codigoDoPapel = 0;
    std::string direito;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("codigo_do_papel", codigoDoPapel);
        visit("direito", direito);
    }
};

/// A user, without what is secret.
struct AccountRow {
    static constexpr const char* Table = "usuario";
    Key codigo = 0;
    std::string nome;
    int situacao = 1;
    /// Null of one who cannot sign in.
    Nullable<Key> codigoDoPapel;

    bool IsActive() const { return situacao == 1; }

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("nome", nome);
        visit("situacao", situacao);
        visit("codigo_do_papel", codigoDoPapel);
    }
};

/// What is secret of a user: no audit and no file ever gets it.
struct SecretsRow {
    static constexpr const char* Table = "usuario";
    Key codigo = 0;
    /// As Argon2id keeps them; Null where there is none.
    Nullable<std::string> senha, pin;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("senha", senha);
        visit("pin", pin);
    }
};

} // namespace kova::family
