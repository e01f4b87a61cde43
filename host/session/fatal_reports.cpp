#include "host/session/fatal_reports.hpp"

#include "system/fatal_report.hpp"
#include "system/path_text.hpp"
#include "system/system_name.hpp"

#include <QDateTime>
#include <QtGlobal>

#include <vector>

namespace kova::host {

namespace fs = std::filesystem;

namespace {

/// What nobody has been told of ends so; the rest of the name stays.
constexpr const char* Untold = ".novo.txt";
constexpr const char* Told = ".txt";

std::string HeadingOf(const std::string& opened, const QDateTime& start)
{
    return "Kovaris " KOVARIS_VERSION "\nSistema: " + system::SystemName() + "\nQt: " + qVersion()
        + "\nAberto: " + opened + ", desde " + start.toString(Qt::ISODate).toStdString() + "\n\n";
}

} // namespace

void FatalReports::Begin(const std::string& opened) const
{
    std::error_code error;
    fs::create_directories(folder_, error);
    if (error)
        return;
    const QDateTime start = QDateTime::currentDateTime();
    const QString name = start.toString(QStringLiteral("yyyyMMdd-HHmmss-zzz")) + QLatin1String(Untold);
    system::WriteOnFatalFailure({folder_ / system::PathOf(name.toStdString()), HeadingOf(opened, start)});
}

bool FatalReports::TakeNews() const
{
    std::error_code error;
    std::vector<fs::path> untold;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_, error)) {
        if (system::TextOf(entry.path().filename()).ends_with(Untold))
            untold.push_back(entry.path());
    }
    bool taken = false;
    for (const fs::path& report : untold) {
        const std::string text = system::TextOf(report);
        fs::rename(report, system::PathOf(text.substr(0, text.size() - std::string(Untold).size()) + Told),
                   error);
        taken = taken || !error;
    }
    return taken;
}

} // namespace kova::host
