#pragma once

#include "agenda/contracts/platform.hpp"
#include "family/data/selections/transport_stops.hpp"

#include <string>
#include <vector>

namespace kova::host {

/// "Buscar" or "Levar".
std::string WhatIsDone(const family::TransportStop& stop);
/// The address, or that there is none: somebody without a register has none.
std::string WhereItIs(const family::TransportStop& stop);
/// Of the channels those that somebody on the way can use: no addresses of mail or pages.
std::string PhonesOf(const family::TransportStop& stop);
/// "Nenhuma parada", "3 paradas: 1 para buscar, 2 para levar"
std::string CountOf(const std::vector<family::TransportStop>& stops);

/// One page, or several, for a day: its stops by time and district, with address, phones and animal, and a
/// line to sign at each. The data know no drivers: all stops of the day stand on it, whoever goes there.
struct RunSheet {
    std::string company;
    Date day;
    /// Who goes there, as it is to be printed; "" leaves a line to write it on.
    std::string driver;
    std::vector<family::TransportStop> stops;
};

/// Shows it as it will be printed, and returns once that was closed. Fails as Report::ShowModal.
void Show(Toolkit& toolkit, const RunSheet& sheet);

/// The report that Show shows, not shown yet.
ReportRef MakeRunSheet(Toolkit& toolkit, const RunSheet& sheet);

} // namespace kova::host
