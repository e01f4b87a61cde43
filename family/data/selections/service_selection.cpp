#include "family/data/selections/service_selection.hpp"

#include "family/data/engine/search_text.hpp"

namespace kova::family {

namespace {

// The columns in the order of FoundServiceOf::Members.
constexpr const char* Statement =
    "select codigo, nome, descricao, preco_em_centavos, custo_em_centavos, numero_do_tipo_de_servico,"
    " duracao_em_minutos from servico where situacao = 1"
    " and (:tipo = 0 or numero_do_tipo_de_servico = :tipo)"
    " and (:codigo = 0 or codigo = :codigo)"
    " and nome_de_busca like :padrao_do_nome escape '!'"
    " and (nome_de_busca like :padrao escape '!' or codigo = :codigo_digitado)"
    " order by nome_de_busca, codigo";

class ServiceSelection : public RowSelection<FoundServiceOf> {
public:
    explicit ServiceSelection(Database& database) : RowSelection(database)
    {
        Use(type_, "tipo");
        Use(code_, "codigo");
        Use(name_.pattern, "padrao_do_nome");
        Use(text_.pattern, "padrao");
        Use(text_.code, "codigo_digitado");
        Prepare(Statement);
    }

    KeptRows<FoundServiceOf> Run(const ServiceFilter& filter)
    {
        type_ = filter.type;
        code_ = filter.code;
        name_ = SearchText(filter.name);
        text_ = SearchText(filter.text);
        return Fetch();
    }

private:
    Key type_ = 0, code_ = 0;
    SearchText name_, text_;
};

} // namespace

KeptRows<FoundServiceOf> SelectServices(Database& database, const ServiceFilter& filter)
{
    return database.With<ServiceSelection>(
        [&](ServiceSelection& selection) { return selection.Run(filter); });
}

} // namespace kova::family
