#include "host/session/remembered_shops.hpp"

#include "family/data/engine/secrets_in_text.hpp"
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
    const int count = std::min(settings.beginReadArray(List), static_cast<int>(Most));
    for (int at = 0; at < count; ++at) {
        settings.setArrayIndex(at);
        const std::string source = settings.value(SourceKey).toString().toStdString();
        // One with a password in it cannot be opened, and would show it.
        if (!source.empty() && family::WithoutSecrets(source) == source)
            shops.push_back({source, settings.value(NameKey).toString().toStdString()});
    }
    return shops;
}

bool RememberedShops::Remember(const RememberedShop& shop)
{
    if (family::WithoutSecrets(shop.source) != shop.source)
        return false;
    std::vector<RememberedShop> shops = All();
    if (!shops.empty() && shops.front() == shop)
        return true;
    std::erase_if(shops, [&](const RememberedShop& one) { return one.source == shop.source; });
    shops.insert(shops.begin(), shop);
    shops.resize(std::min(shops.size(), Most));
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
    int at = 0;
    for (const RememberedShop& shop : shops) {
        settings.setArrayIndex(at++);
        settings.setValue(SourceKey, QString::fromStdString(shop.source));
        settings.setValue(NameKey, QString::fromStdString(shop.name));
    }
    settings.endArray();
    settings.sync();
    system::KeepFromOthers(NameOf(file_).toStdString());
    return settings.status() != QSettings::AccessError;
}

} // namespace kova::host
