#include "family/business/shop/background_backup.hpp"

#include "family/data/copies/daily_backup.hpp"
#include "family/data/engine/failure_words.hpp"

#include <exception>

namespace kova::family {

BackgroundBackup::BackgroundBackup(std::string source, Date day)
    : source_(std::move(source)), day_(day), thread_([this](const std::stop_token& stop) { Run(stop); })
{
}

void BackgroundBackup::Run(const std::stop_token& stop)
{
    try {
        MakeDailyBackup(source_, day_, {{}, stop});
    } catch (const std::exception& failure) {
        reason_ = WordsFor(failure);
    }
    ended_ = true;
}

} // namespace kova::family
