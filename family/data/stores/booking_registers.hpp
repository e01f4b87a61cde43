#pragma once

#include "family/data/rows/rows.hpp"

/// What a booking has to know of the registers that it refers to; read with FindByKey.
namespace kova::family {

struct BookedCustomer {
    static constexpr const char* Table = "cliente";
    Key code = 0;
    /// 1 active, 2 inactive, 3 blocked, 4 deleted.
    int status = 0;

    bool IsUsable() const { return status < 2 || status > 4; }

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", code);
        visit("situacao", status);
    }
};

struct BookedAnimal {
    static constexpr const char* Table = "animal";
    Key code = 0, customer = 0;

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", code);
        visit("codigo_do_cliente", customer);
    }
};

struct BookedServiceType {
    static constexpr const char* Table = "tipo_de_servico";
    Key number = 0;

    template <class Visit> void Columns(Visit visit) { visit("numero", number); }
};

struct BookedService {
    static constexpr const char* Table = "servico";
    Key code = 0, type = 0, priceInCents = 0;
    Nullable<int> sessions;
    int status = 0;

    bool IsActive() const { return status == 1; }
    /// Sold as several sessions.
    bool IsPackage() const { return !sessions.IsNull(); }

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", code);
        visit("numero_do_tipo_de_servico", type);
        visit("preco_em_centavos", priceInCents);
        visit("quantidade_de_sessoes", sessions);
        visit("situacao", status);
    }
};

struct BookedEmployee {
    static constexpr const char* Table = "funcionario";
    /// Whoever books an employee waits here for the others who do, and then sees what they have booked.
    static constexpr bool LocksRow = true;
    Key code = 0;
    std::string nickname;
    /// Appointments that can run at the same time; 0 is unlimited.
    int limit = 1;
    int status = 0;

    bool IsActive() const { return status == 1; }

    template <class Visit> void Columns(Visit visit)
    {
        visit("codigo", code);
        visit("apelido", nickname);
        visit("agendamentos_simultaneos", limit);
        visit("situacao", status);
    }
};

} // namespace kova::family
