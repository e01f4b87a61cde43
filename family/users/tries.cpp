#include "family/users/tries.hpp"

#include "family/data/engine/database.hpp"

#include <algorithm>

namespace kova::family {

namespace {

constexpr int FreeTries = 2;
constexpr long long LongestWait = 300;
constexpr long long SecondsOfDay = 24 * 60 * 60;

/// Runs what asks the engine directly.
template <class Use> void Guarded(Database& database, Use use)
{
    try {
        use(database.Session());
    } catch (const soci::soci_error& cause) {
        throw TranslatedFailure(database.Path(), cause);
    }
}

long long SecondsOf(DateTime moment)
{
    constexpr Date Beginning{1970, 1, 1};
    const long long days = DayNumber(moment.date) - DayNumber(Beginning);
    const TimeOfDay& time = moment.time;
    return days * SecondsOfDay + (time.hour * 60LL + time.minute) * 60 + time.second;
}

std::string Counted(long long count, const char* one)
{
    return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

} // namespace

long long SecondsNow(Database& database, const Clock& clock)
{
    const std::string& question = database.GetDialect().secondsNow;
    if (question.empty())
        return SecondsOf(clock.Now());
    long long now = 0;
    Guarded(database, [&](soci::session& session) { session << question, soci::into(now); });
    return now;
}

long long WaitAfter(int wrong)
{
    if (wrong <= FreeTries)
        return 0;
    constexpr int Doublings = 9;
    return std::min(LongestWait, 1LL << std::min(wrong - FreeTries, Doublings));
}

long long Tries::WaitAt(long long now) const { return std::max(0LL, last + WaitAfter(wrong) - now); }

// The row is made where there is none: only what is there can be held.
Tries FindTries(Database& database, const std::string& digest, long long now)
{
    Tries tries;
    Guarded(database, [&](soci::session& session) {
        session << "insert into tentativa_de_entrada (identificador, erros, ultimo_erro) values (:nome, 0, 0)"
                   " on conflict (identificador) do nothing",
            soci::use(digest, "nome");
        session << "select erros, ultimo_erro from tentativa_de_entrada where identificador = :nome"
                + database.GetDialect().lockRow,
            soci::use(digest, "nome"), soci::into(tries.wrong), soci::into(tries.last);
        if (tries.last <= now)
            return;
        tries.last = now;
        session << "update tentativa_de_entrada set ultimo_erro = :agora where identificador = :nome",
            soci::use(now, "agora"), soci::use(digest, "nome");
    });
    return tries;
}

void CountWrongTry(Database& database, const std::string& digest, long long now)
{
    const long long forgotten = now - SecondsOfDay;
    Guarded(database, [&](soci::session& session) {
        session << "update tentativa_de_entrada set erros = erros + 1, ultimo_erro = :agora"
                   " where identificador = :nome",
            soci::use(now, "agora"), soci::use(digest, "nome");
        session << "delete from tentativa_de_entrada where ultimo_erro < :antes",
            soci::use(forgotten, "antes");
    });
}

void ForgetTries(Database& database, const std::string& digest)
{
    Guarded(database, [&](soci::session& session) {
        session << "delete from tentativa_de_entrada where identificador = :nome", soci::use(digest, "nome");
    });
}

std::string WordsOfWait(long long seconds)
{
    constexpr long long Minute = 60;
    if (seconds < Minute)
        return Counted(seconds, "segundo");
    const std::string minutes = Counted(seconds / Minute, "minuto");
    return seconds % Minute == 0 ? minutes : minutes + " e " + Counted(seconds % Minute, "segundo");
}

} // namespace kova::family
