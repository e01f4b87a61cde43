#include "host/session/shops.hpp"

#include "family/data/engine/failure_words.hpp"
#include "host/arguments/call.hpp"
#include "host/first_start/ask_for_shop.hpp"
#include "host/folders.hpp"
#include "host/session/remembered_shops.hpp"
#include "system/path_text.hpp"

#include <QApplication>

#include <cstdlib>
#include <exception>

namespace kova::host {

namespace {

/// The demonstration is made where it is missing; any other shop has to be there.
std::string AsOption(const std::string& source)
{
    return source == system::TextOf(DemonstrationDatabase()) ? std::string() : source;
}

/// Of those with a window.
bool AsksForShops(const Options& options)
{
    return !options.firstPaint && !options.demonstration && options.database.empty();
}

/// A name, a day and a time that somebody has typed are for the first shop.
void ForgetPretence(Options& options)
{
    if (!options.isTyped)
        return;
    options.user.clear();
    options.date.reset();
    options.time.reset();
}

/// Why the shop could not be opened; nothing where the session has begun. `end` is how it ended.
std::optional<std::string> TryShop(const Options& options, SessionEnd& end)
{
    try {
        end = RunSession(options, Outlet::Window);
        return std::nullopt;
    } catch (const arguments::BadArguments&) {
        throw;
    } catch (const std::exception& failure) {
        return family::WordsFor(failure);
    }
}

} // namespace

int RunShops(const Options& given, Outlet outlet)
{
    RequireFolders();
    if (outlet != Outlet::Window)
        return RunSession(given, outlet).status;

    // A session ends with its window. What the toolkit does besides, once the last window has gone, would end
    // the first dialog of the next session too, before anybody has read it.
    QApplication::setQuitOnLastWindowClosed(false);
    const RememberedShops remembered(SettingsFile());
    Options options = given;
    SessionEnd end;
    if (AsksForShops(given)) {
        const auto shops = remembered.All();
        end.next = shops.empty() ? AskForShop(remembered, {}) : ChosenShop{shops.front().source, {}};
    } else {
        end = RunSession(options, outlet);
        ForgetPretence(options);
    }
    while (end.next) {
        options.database = AsOption(end.next->source);
        options.entry = end.next->entry;
        if (const auto refusal = TryShop(options, end))
            end = {EXIT_FAILURE, AskForShop(remembered, *refusal)};
        else
            ForgetPretence(options);
    }
    return end.status;
}

} // namespace kova::host
