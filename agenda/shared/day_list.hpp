#pragma once

#include "agenda/contracts/widgets/grid.hpp"

namespace kova::agenda {

/// The list of the day, as the screens that open from it see it.
class ListaDoDia {
public:
    virtual ~ListaDoDia() = default;

    /// Holds every field of the appointments on show, by the columns of `colunas`. The row that a record form
    /// is opened for is RowSel.
    virtual const MSFlexGrid& Grade() const = 0;
    /// Paints the list now, as after a dialog that lay over it.
    virtual void Redesenhar() = 0;
};

} // namespace kova::agenda
