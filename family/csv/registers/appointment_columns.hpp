#pragma once

#include "family/data/stores/appointment_rows.hpp"
#include "family/registers/description/column_kinds.hpp"

namespace kova::family::csv {

/// An appointment with its pre-sale.
struct AppointmentRecord : family::AppointmentRow {
    /// A value of pre_sale_status; 0 where there is no pre-sale or the file does not say.
    int preSaleStatus = 0;
    /// Null where the file does not say.
    family::Nullable<family::Key> preSaleValue;
};

namespace appointment_columns {
inline constexpr const char* Number = "Número";
inline constexpr const char* EndTime = "Hora final";
inline constexpr const char* StartTime = "Hora inicial";
inline constexpr const char* Customer = "Código do cliente";
inline constexpr const char* Animal = "Código do animal";
inline constexpr const char* CustomerName = "Nome do cliente";
inline constexpr const char* Channels = "Contato";
inline constexpr const char* AnimalName = "Nome do animal";
inline constexpr const char* Sex = "Sexo";
inline constexpr const char* Species = "Espécie";
inline constexpr const char* Breed = "Raça";
inline constexpr const char* Colour = "Cor";
inline constexpr const char* Service = "Código do serviço";
inline constexpr const char* ServiceType = "Número do tipo";
inline constexpr const char* Employee = "Código do funcionário";
inline constexpr const char* Status = "Situação";
inline constexpr const char* PreSale = "Pré-venda";
inline constexpr const char* PreSaleValue = "Valor da pré-venda";
} // namespace appointment_columns

const family::registers::Columns<AppointmentRecord>& AppointmentColumns();

} // namespace kova::family::csv
