#include "bench/list_program.hpp"

#include "agenda/list/clsAgenda.hpp"
#include "agenda/list/module_reset.hpp"
#include "agenda/shared/modPrincipal.hpp"
#include "agenda/shared/module_platform.hpp"
#include "bench/paint_watch.hpp"
#include "family/business/appointments/agenda.hpp"
#include "family/business/registers/customers.hpp"
#include "family/business/registers/employees.hpp"
#include "family/business/registers/service_types.hpp"
#include "family/business/shop/system_version.hpp"
#include "toolkits/common/grid/navigation_bar.hpp"
#include "toolkits/qt/handles.hpp"
#include "toolkits/qt/look/apply_look.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QApplication>
#include <QMouseEvent>

#include <cstdlib>
#include <iostream>
#include <stdexcept>

namespace kova::bench {

namespace {

/// Stands for the error screen. A list that had to report something did not do what is measured, so the
/// program ends.
class ErrorScreen : public Component {
public:
    Value Get(std::string_view) override { return {}; }
    void Set(std::string_view, const Value&) override { }
    Value Call(std::string_view, std::span<Argument> arguments) override
    {
        std::cerr << "the list reports";
        for (const Argument& argument : arguments)
            std::cerr << ": " << argument.Get().ToText();
        std::cerr << std::endl;
        std::_Exit(EXIT_FAILURE);
    }
};

} // namespace

ComponentRef DataComponents::CreateObject(std::string_view className)
{
    if (className == family::Agenda::ClassName)
        return std::make_shared<family::Agenda>(host_);
    if (className == family::ServiceTypes::ClassName)
        return std::make_shared<family::ServiceTypes>(host_);
    if (className == family::Employees::ClassName)
        return std::make_shared<family::Employees>(host_);
    if (className == family::Customers::ClassName)
        return std::make_shared<family::Customers>(host_);
    if (className == family::SystemVersion::ClassName)
        return std::make_shared<family::SystemVersion>(host_);
    return std::make_shared<ErrorScreen>();
}

ListProgram::ListProgram(const std::string& database, Date day, QSize size)
    : clock_(day), toolkit_(clock_, size.width()), platform_(clock_, toolkit_), components_(database)
{
    platform_.Use(components_);
    agenda::AttachPlatform(&platform_);
    window_.resize(size);
    window_.show();
    const Long handle = qt::HandleOf(window_);
    agenda::clsAgenda agenda;
    static_cast<Component&>(agenda).Call("AbrirLista", {handle, handle});
    list_ = std::dynamic_pointer_cast<agenda::frmLista>(agenda::Principal.FormularioDaLista);
    grid_ = dynamic_cast<qt::GridCanvas*>(window_.findChild<QWidget*>(QStringLiteral("frmLista.msfgGrade")));
    if (!grid_)
        throw std::runtime_error("the list has no grid");
    Settle();
}

ListProgram::~ListProgram()
{
    list_.reset();
    agenda::ReiniciarModulo();
    agenda::AttachPlatform(nullptr);
}

void ListProgram::ShowPanel(bool show)
{
    list_->chkExibirPainel.Value(show ? 1 : 0);
    Settle();
}

void ListProgram::ShowDay(Date day, Integer rowsOfPage)
{
    list_->kvdtpDataDeAgendamento.Text(FormatDate(day));
    list_->RegistrosPorPagina = rowsOfPage;
    list_->GerarLista();
    list_->PaginaAtual = 1;
    list_->AtualizarObjetos(1);
    Settle();
}

Long ListProgram::RecordCount() const { return static_cast<Long>(list_->kvnbBarraDeNavegacao.RecordCount()); }

void ListProgram::PressBar(int button)
{
    dynamic_cast<toolkit::NavigationBarModel&>(list_->kvnbBarraDeNavegacao).UserPresses(button);
}

void ListProgram::MoveMouseTo(int row)
{
    const QPointF place = QRectF(grid_->RowArea(row)).center();
    QMouseEvent event(QEvent::MouseMove, place, grid_->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(grid_, &event);
}

int MeasureOnDay(int count, char** words, const char* name, void (*measure)(const std::string&, Date))
{
    const std::optional<Date> day = count == 3 ? ParseDate(words[2]) : std::nullopt;
    if (!day) {
        std::cerr << "usage: " << name << " DATABASE dd/mm/yyyy" << std::endl;
        return 2;
    }
    try {
        QApplication application(count, words);
        qt::ApplyLook(application);
        measure(words[1], *day);
        return 0;
    } catch (const std::exception& failure) {
        std::cerr << name << ": " << failure.what() << std::endl;
        return 1;
    }
}

} // namespace kova::bench
