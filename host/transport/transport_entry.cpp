#include "host/transport/transport_entry.hpp"

#include "agenda/contracts/date_time.hpp"
#include "agenda/contracts/failure.hpp"
#include "agenda/contracts/widgets.hpp"
#include "family/data/sources/data_source.hpp"
#include "host/shell/main_window.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/toolkit.hpp"
#include "toolkits/common/widget_core.hpp"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QShortcut>

#include <utility>

namespace kova::host {

TransportEntry::TransportEntry(std::string source, std::string company, toolkit::ToolkitModel& toolkit,
                               const Clock& clock)
    : source_(std::move(source)), company_(std::move(company)), toolkit_(toolkit), clock_(clock)
{
}

void TransportEntry::AddTo(MainWindow& window)
{
    window_ = &window;
    window.Menu().addAction(QStringLiteral("&Transporte do dia...\tCtrl+B"), &window, [this] { Open(); });
    // The menu is not always there to hear the key.
    QObject::connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_B), &window), &QShortcut::activated,
                     &window, [this] { Open(); });
}

void TransportEntry::Open()
{
    const QString subject = QStringLiteral("transporte");
    try {
        if (!database_)
            database_ = family::OpenDatabase(source_);
        TransportDialog dialog({database_, toolkit_, company_}, DayOnShow(), window_);
        window_->ShowNotice(subject, {});
        dialog.exec();
    } catch (const Failure& failure) {
        window_->ShowNotice(subject,
                            QStringLiteral("O transporte do dia não pôde ser lido. ")
                                + QString::fromStdString(failure.Description()));
    }
}

Date TransportEntry::DayOnShow() const
{
    const toolkit::FormModel* list = toolkit_.FindForm("frmLista");
    toolkit::WidgetCore* box = list != nullptr ? list->Find("kvdtpDataDeAgendamento") : nullptr;
    const auto* day = box != nullptr ? dynamic_cast<const KVDTPicker*>(&box->Face()) : nullptr;
    return (day != nullptr ? ParseDate(day->Text()) : std::nullopt).value_or(clock_.Now().date);
}

} // namespace kova::host
