#include "toolkits/qt/report/report_preview.hpp"

#include "reports/pages.hpp"
#include "reports/qt/delivery.hpp"
#include "toolkits/common/shortcuts.hpp"
#include "toolkits/qt/dialogs/help_window.hpp"
#include "toolkits/qt/look/flat_button.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "toolkits/qt/report/report_desk.hpp"

#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace kova::qt {

namespace {

/// A card is one record on an upright sheet; its reader looks for the whole of it.
bool IsCard(const reports::Document& document)
{
    return document.records == 1 && document.paperHeight > document.paperWidth;
}

} // namespace

const std::vector<ReportPreview::Command>& ReportPreview::Commands()
{
    using Preview = ReportPreview;
    static const std::vector<Command> commands{
        {"PgDown", "Próxima página", &Preview::NextPage},
        {"PgUp", "Página anterior", &Preview::PreviousPage},
        {"Home", "Primeira página", &Preview::FirstPage},
        {"End", "Última página", &Preview::LastPage},
        {"Ctrl++", "Aumentar", &Preview::ZoomIn},
        {"Ctrl+-", "Diminuir", &Preview::ZoomOut},
        {"Ctrl+0", "Tamanho do papel", &Preview::PaperSize},
        {"Ctrl+L", "Ajustar à largura", &Preview::FitWidth},
        {"Ctrl+I", "Página inteira", &Preview::FitPage},
        {"Ctrl+P", "Imprimir", &Preview::PrintPages},
        {"Ctrl+S", "Salvar em PDF", &Preview::SavePdf},
        {"Ctrl+F", "Localizar um texto", &Preview::GoToSearch},
        {"F3", "Localizar o próximo", &Preview::NextMatch},
        {"Shift+F3", "Localizar o anterior", &Preview::PreviousMatch},
        {"Esc", "Fechar", &Preview::Leave},
        {"F1", "Mostrar esta ajuda", &Preview::ShowKeys},
    };
    return commands;
}

ReportPreview::ReportPreview(const reports::Document& document, ReportDesk& desk, Date day, QWidget* over)
    : QDialog(over), document_(document), desk_(desk), day_(day), canvas_(new ReportCanvas(document, this))
{
    setObjectName(QStringLiteral("visualizacao"));
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMaximizeButtonHint
                   | Qt::WindowCloseButtonHint);
    setWindowTitle(FromText(document.title));
    resize(1000, 720);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    MakeBars(*column);
    column->addWidget(canvas_);
    canvas_->changed = [this] { FollowCanvas(); };
    if (IsCard(document))
        canvas_->FitPage();
    FollowCanvas();
    canvas_->setFocus();
}

void ReportPreview::FollowCanvas()
{
    const std::size_t page = canvas_->CurrentPage();
    const std::size_t pages = document_.pages.size();
    pageLabel_->setText(QStringLiteral("Página %1 de %2").arg(page + 1).arg(pages));
    zoomLabel_->setText(QStringLiteral("%1%").arg(std::lround(canvas_->Zoom() * 100)));
    const QWidget* before = focusWidget();
    for (FlatButton* button : backButtons_)
        button->setEnabled(page > 0);
    for (FlatButton* button : forwardButtons_)
        button->setEnabled(page + 1 < pages);
    // A button that goes out of use has lost the focus to nobody.
    if (before && !focusWidget())
        canvas_->setFocus();
}

const ReportPreview::Command* ReportPreview::CommandOf(const QKeyEvent& event) const
{
    // "+" may come with Shift, as on most keyboards, or from the keypad; "=" is its key without Shift.
    Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    int key = event.key();
    if (modifiers & Qt::ControlModifier && (key == Qt::Key_Plus || key == Qt::Key_Equal)) {
        key = Qt::Key_Plus;
        modifiers &= ~Qt::ShiftModifier;
    }
    const QString name = QKeySequence(static_cast<int>(modifiers) | key).toString(QKeySequence::PortableText);
    const auto found = std::ranges::find_if(
        Commands(), [&](const Command& command) { return name == QLatin1String(command.key); });
    return found == Commands().end() ? nullptr : &*found;
}

void ReportPreview::keyPressEvent(QKeyEvent* event)
{
    if (const Command* command = CommandOf(*event))
        (this->*command->act)();
    else
        event->ignore();
}

void ReportPreview::PreviousPage()
{
    const std::size_t page = canvas_->CurrentPage();
    canvas_->ShowPage(page > 0 ? page - 1 : 0);
}

void ReportPreview::LastPage() { canvas_->ShowPage(document_.pages.size()); }

void ReportPreview::NextPage() { canvas_->ShowPage(canvas_->CurrentPage() + 1); }

void ReportPreview::GoToSearch()
{
    search_->setFocus();
    search_->selectAll();
}

void ReportPreview::Search()
{
    searched_ = search_->text();
    matches_ = FindInReport(document_, searched_);
    // From the page in view on, so that typing does not send the reader back to the beginning.
    const auto here = std::ranges::find_if(
        matches_, [this](const ReportMatch& match) { return match.page >= canvas_->CurrentPage(); });
    currentMatch_ = here == matches_.end() ? 0 : static_cast<std::size_t>(here - matches_.begin());
    StepToMatch(0);
}

void ReportPreview::StepToMatch(int step)
{
    if (matches_.empty()) {
        canvas_->ClearMarks();
        found_->setText(searched_.isEmpty() ? QString() : QStringLiteral("Nenhum texto encontrado"));
        return ArrangeBars();
    }
    const auto count = static_cast<int>(matches_.size());
    currentMatch_ = static_cast<std::size_t>((static_cast<int>(currentMatch_) + step + count) % count);
    found_->setText(QStringLiteral("%1 de %2").arg(currentMatch_ + 1).arg(count));
    canvas_->Mark(matches_, currentMatch_);
    ArrangeBars();
}

// Leaving the search first: whoever presses Escape there means the search.
void ReportPreview::Leave()
{
    if (focusWidget() != search_)
        return reject();
    search_->clear();
    canvas_->setFocus();
}

void ReportPreview::ShowKeys()
{
    std::vector<toolkit::KeyHelp> keys;
    for (const Command& command : Commands())
        keys.push_back({command.key, command.purpose});
    ShowHelpWindow(this, document_.title, keys);
}

void ReportPreview::PrintPages()
{
    paper::Printing printing;
    printing.currentPage = canvas_->CurrentPage();
    printing.printerGone =
        QStringLiteral("A impressora deixou de responder e a impressão foi interrompida.\n\n"
                       "Verifique se ela está ligada e conectada, ou salve o documento em PDF.");
    ShowDelivered(paper::PrintFrom(*this, desk_, document_, printing));
}

void ReportPreview::SavePdf() { ShowDelivered(paper::SaveFrom(*this, desk_, document_, day_)); }

void ReportPreview::ShowDelivered(const paper::Delivered& delivered)
{
    if (delivered.text.isEmpty())
        return;
    status_->setText(delivered.text);
    status_->setToolTip(delivered.toolTip);
}

} // namespace kova::qt
