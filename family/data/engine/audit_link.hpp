#pragma once

#include "family/data/engine/key.hpp"
#include "family/data/engine/nullable.hpp"

#include <string>

namespace kova::family {

/// A line of the audit as it is stored: what its link is made of, in this order. A column that the table gets
/// later is no part of it, since the links that are stored would not fit any more.
struct ChainedLine {
    Key codigo = 0;
    std::string momento, usuario, posto, tabela;
    Key chave = 0;
    std::string operacao;
    Nullable<std::string> antes, depois;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", codigo);
        visit("momento", momento);
        visit("usuario", usuario);
        visit("posto", posto);
        visit("tabela", tabela);
        visit("chave", chave);
        visit("operacao", operacao);
        visit("antes", antes);
        visit("depois", depois);
    }
};

/// The letters of a link: nobody finds another line for 132 bits. Former programs have kept all 43.
inline constexpr std::size_t LinkLetters = 22;

/// The link of a line: the SHA-256, in base64 and as far as LinkLetters, of the link before it ("" before the
/// first), of the salt and of all columns, each with its length in bytes before it. A server makes the same
/// (family/data/migrations/chained_audit.cpp).
std::string LinkOf(const std::string& former, const std::string& salt, const ChainedLine& line);

/// Whether that is the line's link, also one of former programs.
bool IsLinkOf(const std::string& link, const std::string& former, const std::string& salt,
              const ChainedLine& line);

/// Random digits that go into one link. Without them nobody can find out by trying what a line told that was
/// cleaned since.
std::string NewSalt();

} // namespace kova::family
