#include "family/data/stores/usual_services.hpp"

namespace kova::family {

std::span<const UsualService> UsualServices()
{
    static constexpr UsualService services[] = {
        {4, "Banho e tosa", "Banho", 45, 6000},
        {4, "Banho e tosa", "Banho e tosa higiênica", 60, 8000},
        {4, "Banho e tosa", "Banho e tosa completa", 90, 11000},
        {4, "Banho e tosa", "Tosa na tesoura", 90, 14000},
        {4, "Banho e tosa", "Hidratação", 30, 4500},
        {4, "Banho e tosa", "Corte de unhas", 15, 2500},
        {4, "Banho e tosa", "Pacote de 4 banhos", 45, 21000, 4},
        {1, "Consulta", "Consulta clínica", 30, 15000},
        {2, "Retorno", "Retorno de consulta", 20, 0},
        {3, "Vacinação", "Vacina antirrábica", 15, 8000},
        {3, "Vacinação", "Vacina múltipla", 15, 11000},
    };
    return services;
}

} // namespace kova::family
