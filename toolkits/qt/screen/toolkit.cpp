#include "toolkits/qt/screen/toolkit.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "reports/layout.hpp"
#include "reports/qt/font_metrics.hpp"
#include "toolkits/common/factory/widget_factory.hpp"
#include "toolkits/common/form.hpp"
#include "toolkits/common/report.hpp"
#include "toolkits/common/shortcuts.hpp"
#include "toolkits/qt/boxes/field_accessible.hpp"
#include "toolkits/qt/burial.hpp"
#include "toolkits/qt/dialogs/help_window.hpp"
#include "toolkits/qt/dialogs/message_box.hpp"
#include "toolkits/qt/form.hpp"
#include "toolkits/qt/form_area.hpp"
#include "toolkits/qt/grid/grid_accessible.hpp"
#include "toolkits/qt/handles.hpp"
#include "toolkits/qt/input_gate.hpp"
#include "toolkits/qt/look/apply_look.hpp"
#include "toolkits/qt/look/text_measure.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "toolkits/qt/picture_box.hpp"
#include "toolkits/qt/report/report_day.hpp"
#include "toolkits/qt/report/report_desk.hpp"
#include "toolkits/qt/report/report_preview.hpp"
#include "toolkits/qt/screen/view_factory.hpp"

#include <QApplication>
#include <QEventLoop>
#include <QPainterPath>
#include <QRegion>
#include <QScreen>
#include <QTimer>

namespace kova::qt {

namespace {

QWidget* ParentOf(const toolkit::WidgetCore& core)
{
    if (core.Container()) {
        const auto* view = dynamic_cast<WidgetView*>(core.Container()->GetView());
        return view ? view->Window() : nullptr;
    }
    const FormWidget* form = static_cast<const FormWindow&>(core.GetForm().Window()).Window();
    return form ? form->Area().PlaneOf(core.Design()) : nullptr;
}

QRegion RoundRect(const QSize& size, int ellipseWidth, int ellipseHeight)
{
    QPainterPath path;
    path.addRoundedRect(QRectF(QPointF(0, 0), size), ellipseWidth / 2.0, ellipseHeight / 2.0);
    return QRegion(path.toFillPolygon().toPolygon());
}

} // namespace

QtToolkit::QtToolkit(const Clock& clock)
    : ToolkitModel(toolkit::MakeWidget),
      clock_(clock),
      measure_(std::make_unique<QtTextMeasure>()),
      gate_(std::make_unique<InputGate>(*this))
{
    ApplyLook(*qApp, CurrentLook());
    BurialsWaitFor(this);
    // Asked in the reverse order: the grids before what any widget gets.
    InstallFieldAccessibility();
    InstallGridAccessibility();
    qApp->installEventFilter(gate_.get());
}

// Forms that wait for their end go while windows and views can still be destroyed.
QtToolkit::~QtToolkit()
{
    ReleaseRetired();
    BurialsWaitFor(nullptr);
}

void QtToolkit::ProcessPendingEvents()
{
    constexpr int longestWaitMilliseconds = 10;
    QEventLoop loop;
    if (loop.processEvents(QEventLoop::AllEvents) || !IsPausing())
        return;
    QTimer::singleShot(longestWaitMilliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

Twips QtToolkit::ScreenWidth() const { return ToTwips(top_.Screen()->geometry().width()); }

void QtToolkit::SetRoundRectRegion(Long handle, int ellipseWidth, int ellipseHeight)
{
    QWidget* window = WidgetOfHandle(handle);
    if (!window)
        return;
    if (auto* panel = dynamic_cast<PanelWindow*>(window))
        panel->SetCorners(ellipseWidth / 2.0);
    window->setMask(RoundRect(window->size(), ellipseWidth, ellipseHeight));
    window->update();
}

std::unique_ptr<toolkit::FormWindow> QtToolkit::MakeWindow(toolkit::FormModel& form)
{
    return std::make_unique<FormWindow>(top_, form);
}

std::unique_ptr<toolkit::View> QtToolkit::MakeView(toolkit::WidgetCore& widget)
{
    QWidget* parent = ParentOf(widget);
    return parent ? ViewOn(*parent, widget, clock_) : nullptr;
}

const toolkit::TextMeasure& QtToolkit::Measure() const { return *measure_; }

Long QtToolkit::HandleOf(const toolkit::WidgetCore& widget)
{
    const auto* view = dynamic_cast<const WidgetView*>(widget.GetView());
    // A panel whose window the host has destroyed answers its form's handle, which no window has any more.
    return view && view->Window() ? kova::qt::HandleOf(*view->Window()) : widget.GetForm().Window().Handle();
}

void QtToolkit::UnhandledFailure(const Failure& failure)
{
    AskUser(MessageKind::Critical, WithoutDetail(failure.Description()),
            QCoreApplication::applicationName().toStdString());
}

Reply QtToolkit::AskUser(MessageKind kind, const Text& text, const Text& title)
{
    return ShowMessageBox(top_.Below(nullptr), kind, text, title);
}

void QtToolkit::ShowKeys(const toolkit::FormModel& form, const std::vector<toolkit::KeyHelp>& keys)
{
    ShowHelpWindow(top_.Below(nullptr), form.Current().caption, keys);
}

void QtToolkit::RunPreview(const toolkit::ReportModel& report)
{
    ShowPreview(report,
                reports::LayOut({report.Current(), report.Data(), clock_.Now()}, paper::FontMetrics()));
}

void QtToolkit::ShowPreview(const toolkit::ReportModel& report, const reports::Document& pages)
{
    const Date day = DayOfReport(report.Data(), clock_.Now().date);
    const std::unique_ptr<ReportDesk> desk = MakeReportDesk();
    ReportPreview preview(pages, *desk, day, top_.Below(nullptr));
    if (report.Current().windowState == ReportWindowState::Maximized)
        preview.setWindowState(Qt::WindowMaximized);
    preview.exec();
}

std::unique_ptr<ReportDesk> QtToolkit::MakeReportDesk() const { return std::make_unique<ReportDesk>(); }

// Qt may still be inside a handler of a widget that would die.
void QtToolkit::ScheduleRelease()
{
    QTimer::singleShot(0, gate_.get(), [this] { ReleaseRetired(); });
}

void QtToolkit::EventsEnded() { ScheduleBurials(); }

void QtToolkit::InputAwaited()
{
    if (gate_)
        gate_->InputAwaited();
}

} // namespace kova::qt
