#include "host/session/remembered_shops.hpp"

#include "system/access.hpp"
#include "system/path_text.hpp"

#include <QSettings>

#include <algorithm>

namespace kova::host {

namespace {

constexpr const char* List = "lojas";
constexpr const char* SourceKey = "banco";
constexpr const char* NameKey = "nome";

QString NameOf(const std::filesystem::path& file) { return QString::fromStdString(system::TextOf(file)); }

} // namespace

std::vector<RememberedShop> RememberedShops::All() const
{
    QSettings settings(NameOf(file_), QSettings::IniFormat);
    std::vector<RememberedShop> shops;
    const int count = settings.beginReadArray(List);
    for (int at = 0; at < count && shops.size() < Most; ++at) {
        settings.setArrayIndex(at);
        const std::string source = settings.value(SourceKey).toString().toStdString();
        if (!source.empty())
            shops.push_back({source, settings.value(NameKey).toString().toStdString()});
    }
    return shops;
}

bool RememberedShops::Remember(const RememberedShop& shop)
{
    std::vector<RememberedShop> shops = All();
    if (!shops.empty() && shops.front() == shop)
        return true;
    std::erase_if(shops, [&](const RememberedShop& one) { return one.source == shop.source; });
    shops.insert(shops.begin(), shop);
    if (shops.size() > Most)
        shops.resize(Most);
    return Write(shops);
}

bool RememberedShops::Forget(const std::string& source)
{
    std::vector<RememberedShop> shops = All();
    if (std::erase_if(shops, [&](const RememberedShop& one) { return one.source == source; }) == 0)
        return true;
    return Write(shops);
}

bool RememberedShops::Write(const std::vector<RememberedShop>& shops)
{
    QSettings settings(NameOf(file_), QSettings::IniFormat);
    settings.remove(List);
    settings.beginWriteArray(List, static_cast<int>(shops.size()));
    for (std::size_t at = 0; at < shops.size(); ++at) {
        settings.setArrayIndex(static_cast<int>(at));
        settings.setValue(SourceKey, QString::fromStdString(shops[at].source));
        settings.setValue(NameKey, QString::fromStdString(shops[at].name));
    }
    settings.endArray();
    settings.sync();
    system::KeepFromOthers(NameOf(file_).toStdString());
    return settings.status() != QSettings::AccessError;
}

} // namespace kova::host
