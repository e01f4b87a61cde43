// They stand before the client library's own, which has no other way to tell how many rows its results hold.

#include "tests/unit/tools/agenda-data/fetched_rows.hpp"

#include <libpq-fe.h>

#include <dlfcn.h>

extern "C" __attribute__((visibility("default"))) int PQntuples(const PGresult* result)
{
    static const auto ofLibrary = reinterpret_cast<int (*)(const PGresult*)>(dlsym(RTLD_NEXT, "PQntuples"));
    const int rows = ofLibrary(result);
    kova::data::test::NoteServerRows(result, rows);
    return rows;
}

extern "C" __attribute__((visibility("default"))) void PQclear(PGresult* result)
{
    static const auto ofLibrary = reinterpret_cast<void (*)(PGresult*)>(dlsym(RTLD_NEXT, "PQclear"));
    kova::data::test::ForgetServerRows(result);
    ofLibrary(result);
}
