#pragma once

#include "family/business/by_name.hpp"

namespace kova::family {

/// KOVA_N_Servicos.clsServicos: the services.
class Services : public ByName<Services> {
public:
    static constexpr std::string_view ClassName = "KOVA_N_Servicos.clsServicos";

    explicit Services(ServerHost& host) : ByName(host, ClassName) { }

    static std::span<const Method<Services>> Methods();
    static std::span<const Property<Services>> Properties();

private:
    /// Mode, rows of a page, a constant that changes nothing, free text, type; name and code where they are
    /// given. Active services only.
    Value Selecionar(std::span<Argument> arguments);
};

} // namespace kova::family
