#include "host/session/fatal_reports.hpp"

#include "family/data/engine/server_connection.hpp"
#include "system/fatal_report.hpp"
#include "system/path_text.hpp"
#include "system/system_name.hpp"

#include <QDateTime>
#include <QRegularExpression>
#include <QtGlobal>

#include <algorithm>
#include <string_view>
#include <vector>

namespace kova::host {

namespace fs = std::filesystem;

namespace {

/// What nobody has been told of ends so; the rest of the name stays, the moment when its program began.
constexpr std::string_view Untold = ".novo.txt";
constexpr std::string_view Told = ".txt";
constexpr const char* Moment = "yyyyMMdd-HHmmss-zzz";
constexpr const char* NameOfReport = R"([0-9]{8}-[0-9]{6}-[0-9]{3}(\.novo)?\.txt)";

/// Those of a program that fails each morning tell nothing more.
constexpr std::size_t MostReports = 10;

std::string HeadingOf(const std::string& source, const QDateTime& start)
{
    const char* const opened =
        family::IsServer(source) ? "uma loja em um servidor" : "uma loja em um arquivo";
    return "Kovaris " KOVARIS_VERSION "\nSistema: " + system::SystemName() + "\nQt: " + qVersion()
        + "\nAberto: " + opened + ", desde " + start.toString(Qt::ISODate).toStdString() + "\n\n";
}

/// From the oldest to the newest; what else lies in the folder is somebody else's.
std::vector<fs::path> ReportsIn(const fs::path& folder)
{
    const QRegularExpression name(QRegularExpression::anchoredPattern(QLatin1String(NameOfReport)));
    std::error_code error;
    std::vector<fs::path> reports;
    for (auto entry = fs::directory_iterator(folder, error); entry != end(entry); entry.increment(error)) {
        const QString file = QString::fromStdString(system::TextOf(entry->path().filename()));
        std::error_code unreadable;
        if (name.match(file).hasMatch() && entry->symlink_status(unreadable).type() == fs::file_type::regular)
            reports.push_back(entry->path());
    }
    std::ranges::sort(reports);
    return reports;
}

/// What cannot be removed stays.
void RemoveOldReports(const fs::path& folder)
{
    std::vector<fs::path> old = ReportsIn(folder);
    old.resize(old.size() - std::min(old.size(), MostReports));
    std::error_code error;
    for (const fs::path& report : old)
        fs::remove(report, error);
}

} // namespace

void FatalReports::Begin(const std::string& source) const
{
    std::error_code error;
    fs::create_directories(folder_, error);
    if (error)
        return;
    RemoveOldReports(folder_);
    const QDateTime start = QDateTime::currentDateTime();
    const std::string name = start.toString(QLatin1String(Moment)).toStdString().append(Untold);
    system::WriteOnFatalFailure({folder_ / system::PathOf(name), HeadingOf(source, start)});
}

bool FatalReports::TakeNews() const
{
    bool taken = false;
    for (const fs::path& report : ReportsIn(folder_)) {
        std::string name = system::TextOf(report);
        if (!name.ends_with(Untold))
            continue;
        name.replace(name.size() - Untold.size(), Untold.size(), Told);
        std::error_code error;
        fs::rename(report, system::PathOf(name), error);
        taken = taken || !error;
    }
    return taken;
}

} // namespace kova::host
