#include "host/sign_in/kept_entries.hpp"

#include "system/access.hpp"
#include "system/path_text.hpp"

#include <QCryptographicHash>
#include <QSettings>

namespace kova::host {

namespace {

constexpr const char* LastNameKey = "nome";
constexpr const char* TokenKey = "sinal";

QString NameOf(const std::filesystem::path& file) { return QString::fromStdString(system::TextOf(file)); }

/// The name of the group tells nobody where the shop lies.
QString KeyOf(const std::string& source, const char* key)
{
    constexpr int Digits = 16;
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(source), QCryptographicHash::Sha256);
    return QStringLiteral("entrada-%1/%2")
        .arg(QString::fromLatin1(hash.toHex().left(Digits)), QString::fromLatin1(key));
}

} // namespace

std::string KeptEntries::LastName(const std::string& source) const { return Read(source, LastNameKey); }

void KeptEntries::SetLastName(const std::string& source, const std::string& name) const
{
    Write(source, LastNameKey, name);
}

std::string KeptEntries::Token(const std::string& source) const { return Read(source, TokenKey); }

void KeptEntries::SetToken(const std::string& source, const std::string& token) const
{
    Write(source, TokenKey, token);
}

std::string KeptEntries::Read(const std::string& source, const char* key) const
{
    const QSettings settings(NameOf(file_), QSettings::IniFormat);
    return settings.value(KeyOf(source, key)).toString().toStdString();
}

void KeptEntries::Write(const std::string& source, const char* key, const std::string& text) const
{
    if (Read(source, key) == text)
        return;
    QSettings settings(NameOf(file_), QSettings::IniFormat);
    if (text.empty())
        settings.remove(KeyOf(source, key));
    else
        settings.setValue(KeyOf(source, key), QString::fromStdString(text));
    settings.sync();
    system::KeepFromOthers(system::TextOf(file_));
}

} // namespace kova::host
