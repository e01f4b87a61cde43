#include "family/data/engine/safe_write.hpp"

#include "family/data/engine/write_transaction.hpp"

#include <array>
#include <chrono>
#include <cstdio>
#include <random>
#include <thread>

namespace kova::family {

namespace {

constexpr int MostAttempts = 4;
constexpr std::chrono::milliseconds FirstWait(20);

/// Text that no other write has.
std::string NewMark()
{
    // To make one asks the processor for its features, which takes 40 microseconds on a virtual machine.
    static thread_local std::random_device random;
    std::string mark;
    for (int part = 0; part < 4; ++part) {
        std::array<char, 9> digits{};
        std::snprintf(digits.data(), digits.size(), "%08x", static_cast<unsigned>(random()));
        mark += digits.data();
    }
    return mark;
}

class SafeWrite {
public:
    SafeWrite(Database& database, const std::function<bool()>& write) : database_(database), write_(write) { }

    void Run()
    {
        for (int attempt = 1;; ++attempt) {
            try {
                return Try();
            } catch (const DatabaseFailure& failure) {
                if (!mayBeKept_ && !IsPassing(failure.GetFault()))
                    throw;
                if (attempt == MostAttempts || !IsWorthAnother(failure))
                    throw Told(failure);
            }
            std::this_thread::sleep_for(attempt * attempt * FirstWait);
        }
    }

private:
    void Try()
    {
        WriteTransaction transaction(database_, mark_);
        if (transaction.IsKeptAlready())
            return;
        mayBeKept_ = false;
        if (write_())
            Commit(transaction);
    }

    void Commit(WriteTransaction& transaction)
    {
        try {
            transaction.Commit();
        } catch (const DatabaseFailure& failure) {
            mayBeKept_ = failure.GetFault() == Fault::ConnectionLost;
            throw;
        }
    }

    /// Not where there is no connection to be had: the attempt to make one has waited long enough.
    bool IsWorthAnother(const DatabaseFailure& failure) const
    {
        if (!database_.IsConnected())
            return false;
        return mayBeKept_ || failure.GetFault() == Fault::ConnectionLost
            || failure.GetFault() == Fault::Collision;
    }

    /// The failure with what has become of the write, where somebody may wonder.
    DatabaseFailure Told(const DatabaseFailure& failure) const
    {
        if (mayBeKept_)
            return {failure.Description()
                        + "\r\nNão foi possível saber se a gravação foi concluída. Quando o servidor voltar, "
                          "atualize a lista e confira antes de gravar de novo.",
                    Fault::InDoubt};
        return {failure.Description() + "\r\nNada foi gravado.", failure.GetFault(), failure.Cause()};
    }

    Database& database_;
    const std::function<bool()>& write_;
    const std::string mark_ = NewMark();
    bool mayBeKept_ = false;
};

} // namespace

void WriteSafely(Database& database, const std::function<bool()>& write) { SafeWrite(database, write).Run(); }

} // namespace kova::family
