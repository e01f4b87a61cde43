#include "tests/monkey/rules.hpp"

#include "agenda/shared/frmLista_columns.hpp"
#include "tests/monkey/failure_ear.hpp"
#include "tests/monkey/finding.hpp"
#include "tests/monkey/screen.hpp"
#include "toolkits/common/grid/grid.hpp"
#include "toolkits/common/label.hpp"
#include "toolkits/common/toolkit.hpp"
#include "toolkits/qt/grid/grid_canvas.hpp"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <array>

namespace kova::monkey {

namespace {

namespace colunas = agenda::colunas;

constexpr std::array RowButtons{"kvcmdMarcarAgendamentoComoAgendado",
                                "kvcmdMarcarAgendamentoComoAtendido",
                                "kvcmdMarcarAgendamentoComoCancelado",
                                "kvcmdMarcarAgendamentoComoAtendidoEGeradoPreVenda",
                                "kvcmdDetalhar",
                                "kvcmdAlterar",
                                "kvcmdExcluir",
                                "kvcmdImprimirFicha"};

/// Also where something else is in front of it.
QWidget* SignInOnShow()
{
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top->isVisible() && top->objectName() == QLatin1String("Entrada"))
            return top;
    }
    return nullptr;
}

bool IsLock(const QWidget& asked) { return asked.windowTitle().startsWith(QLatin1String("Bloqueado")); }

void LookAtLock(const QWidget& asked)
{
    if (QApplication::activeModalWidget() != &asked)
        TellFinding("the lock is not in front", WhatIsInFront());
    for (const QWidget* top : QApplication::topLevelWidgets()) {
        const auto* cover = top->findChild<QWidget*>(QStringLiteral("cobertura"), Qt::FindDirectChildrenOnly);
        const bool isPassing = top->windowType() == Qt::Popup || top->windowType() == Qt::ToolTip;
        const bool isOfTheLock = top == &asked || asked.isAncestorOf(top);
        if (top->isVisible() && !isPassing && !isOfTheLock && (!cover || cover->geometry() != top->rect()))
            TellFinding("a locked window is seen", top->windowTitle().toStdString());
    }
}

QString TextOf(const QWidget& field)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&field))
        return line->text();
    const auto* text = qobject_cast<const QPlainTextEdit*>(&field);
    return text ? text->toPlainText() : QString();
}

/// Those that somebody may have typed into, in all windows but that one. None where a form is at work: it may
/// go on meanwhile.
std::vector<std::pair<QPointer<QWidget>, QString>> FieldsBeside(const QWidget& asked)
{
    std::vector<std::pair<QPointer<QWidget>, QString>> fields;
    const toolkit::FormModel* list = FormOnShow("frmLista");
    if (!list || list->GetToolkit().IsPausing() || list->GetToolkit().IsInsideEvent())
        return fields;
    for (QWidget* widget : QApplication::allWidgets()) {
        const bool isField = qobject_cast<QLineEdit*>(widget) || qobject_cast<QPlainTextEdit*>(widget);
        if (isField && widget->isVisible() && !asked.isAncestorOf(widget))
            fields.emplace_back(widget, TextOf(*widget));
    }
    return fields;
}

toolkit::FormModel* List() { return FormOnShow("frmLista"); }

const qt::GridCanvas* GridOf(const toolkit::FormModel& list)
{
    return dynamic_cast<const qt::GridCanvas*>(ControlOnShow(list, "msfgGrade"));
}

QString FieldOf(const QWidget& window, const char* name)
{
    const auto* field = window.findChild<QPlainTextEdit*>(QString::fromLatin1(name));
    return field ? field->toPlainText() : QString();
}

Text CaptionOf(const toolkit::FormModel& form, const char* name)
{
    const auto* label = dynamic_cast<const toolkit::LabelModel*>(form.Find(name));
    return label ? label->ShownCaption() : Text();
}

} // namespace

void Rules::Look()
{
    LookForFailures();
    LookAtSignIn();
    const toolkit::FormModel* form = FormInFront();
    const bool isCalm =
        form && form->Design().name == "frmLista" && IsSettled() && !form->GetToolkit().IsInsideEvent();
    calm_ = isCalm ? calm_ + 1 : 0;
    constexpr int turnsOfTheEventLoop = 3;
    if (calm_ == turnsOfTheEventLoop) {
        LookAtRowButtons();
        LookAtPanel();
    }
}

// The error window, and the box for what no handler of the module has caught.
void Rules::LookForFailures()
{
    const QWidget* modal = QApplication::activeModalWidget();
    if (!modal)
        return;
    const QString number = FieldOf(*modal, "number");
    const std::string failure =
        "error " + number.toStdString() + " at " + FieldOf(*modal, "place").toStdString();
    if (!number.isEmpty() && !IsToldByDesign(failure))
        TellFinding(failure, FieldOf(*modal, "description").toStdString());
    const QMessageBox* box = BoxInFront();
    if (box && box->windowTitle() == QCoreApplication::applicationName())
        TellFinding("unhandled failure", box->text().toStdString());
}

void Rules::LookAtSignIn()
{
    QWidget* asked = SignInOnShow();
    if (asked && IsLock(*asked))
        LookAtLock(*asked);
    if (asked && !wasAsked_)
        typed_ = FieldsBeside(*asked);
    if (!asked && wasAsked_) {
        for (const auto& [field, text] : typed_) {
            if (field && TextOf(*field) != text)
                TellFinding("typed text is lost",
                            field->objectName().toStdString() + " had \"" + text.toStdString()
                                + "\" and has \"" + TextOf(*field).toStdString() + '"');
        }
        typed_.clear();
    }
    wasAsked_ = asked != nullptr;
}

void Rules::LookAtRowButtons()
{
    const toolkit::FormModel* list = List();
    const qt::GridCanvas* grid = list ? GridOf(*list) : nullptr;
    const QRect row = grid ? grid->RowArea(grid->Model().Cursor().row) : QRect();
    std::size_t onShow = 0;
    for (const char* name : RowButtons) {
        const QWidget* button = list ? ControlOnShow(*list, name) : nullptr;
        if (!button)
            continue;
        ++onShow;
        if (row.isEmpty())
            return TellFinding("row buttons without a row",
                               std::string(name) + " is on show, the selected row is not");
        const int away = button->mapToGlobal(QPoint()).y() - grid->mapToGlobal(row.topLeft()).y();
        if (std::abs(away) > 2)
            TellFinding("row buttons on another row",
                        std::string(name) + " stands " + std::to_string(away)
                            + " pixels from the selected row " + std::to_string(grid->Model().Cursor().row));
    }
    if (onShow != 0 && onShow != RowButtons.size())
        TellFinding("some row buttons only", std::to_string(onShow) + " are on show");
}

// A row is selected where its buttons are on show.
void Rules::LookAtPanel()
{
    const toolkit::FormModel* list = List();
    const qt::GridCanvas* grid = list ? GridOf(*list) : nullptr;
    if (!grid || !ControlOnShow(*list, "picPainel") || !ControlOnShow(*list, RowButtons.front()))
        return;
    const Long row = grid->Model().Cursor().row;
    for (const auto& [label, column] : {std::pair{"lblNomeDoAnimal", colunas::NomeDoAnimal},
                                        {"lblInicioDoServico", colunas::HoraInicial},
                                        {"lblNomeDoServico", colunas::NomeDoServico},
                                        {"lblNomeDoFuncionario", colunas::ApelidoDoFuncionario},
                                        {"lblObservacaoDoAgendamento", colunas::Observacao}}) {
        const Text told = CaptionOf(*list, label);
        const Text& stored = grid->Model().CellText(row, column);
        if (told != stored)
            TellFinding("the panel tells another appointment",
                        std::string(label) + " says \"" + told + "\", row " + std::to_string(row) + " \""
                            + stored + "\"");
    }
}

void Rules::LookAtHome()
{
    const toolkit::FormModel* list = List();
    if (!list)
        EndWithFinding("no list", "the list is not on show");
    if (ControlOnShow(*list, "picMensagem"))
        TellFinding("a plate is left", "the list takes input, and its wait plate stands");
    for (const toolkit::FormModel* form : list->GetToolkit().ShownForms()) {
        if (form != list)
            TellFinding("a form is left", form->Design().name + " is on show beside the list");
    }
}

} // namespace kova::monkey
