#pragma once

#include "family/registers/description/register.hpp"

namespace kova::family::registers {

/// Where a record is judged: what is stored, and the rows that are written together with it.
struct Among {
    Among(Database& of) : Among(of, None()) { }
    Among(Database& of, const RowsToBe& toBe) : database(of), rows(toBe) { }
    operator Database&() const { return database; }

    Database& database;
    const RowsToBe& rows;

private:
    static const RowsToBe& None()
    {
        static const RowsToBe none;
        return none;
    }
};

} // namespace kova::family::registers
