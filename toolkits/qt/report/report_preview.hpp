#pragma once

#include "agenda/contracts/date_time.hpp"
#include "toolkits/qt/report/report_canvas.hpp"

#include <QDialog>

#include <vector>

class QBoxLayout;
class QLabel;
class QLineEdit;

namespace kova::paper {
struct Delivered;
}

namespace kova::qt {

class FlatButton;
class ReportDesk;

/// The window that shows a report before it goes to paper: pages, size, search, printing, saving. Document
/// and desk must outlive it.
class ReportPreview : public QDialog {
public:
    /// `day` is the one that the report is about; the file's name carries it.
    ReportPreview(const reports::Document& document, ReportDesk& desk, Date day, QWidget* over);

    const ReportCanvas& Canvas() const { return *canvas_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// What a key or a button does.
    struct Command {
        /// As the help shows it.
        const char* key;
        const char* purpose;
        void (ReportPreview::*act)();
    };
    static const std::vector<Command>& Commands();
    const Command* CommandOf(const QKeyEvent& event) const;

    void MakeBars(QBoxLayout& column);
    void MakePageBar(QBoxLayout& bar);
    void MakeLookBar(QBoxLayout& bar);
    void MakeSearch(QBoxLayout& bar);
    FlatButton* Button(QBoxLayout& bar, const char* name, const char* icon, const char* text);
    /// The two bars beside each other, or one below the other where the window is too narrow.
    void ArrangeBars();
    void FollowCanvas();

    void PreviousPage();
    void NextPage();
    void FirstPage() { canvas_->ShowPage(0); }
    void LastPage();
    void ZoomIn() { canvas_->ZoomIn(); }
    void ZoomOut() { canvas_->ZoomOut(); }
    void PaperSize() { canvas_->Zoom(1); }
    void FitWidth() { canvas_->FitWidth(); }
    void FitPage() { canvas_->FitPage(); }
    void PrintPages();
    void SavePdf();
    void GoToSearch();
    void Search();
    void NextMatch() { StepToMatch(1); }
    void PreviousMatch() { StepToMatch(-1); }
    void StepToMatch(int step);
    void Leave();
    void ShowKeys();
    /// Leaves the line of status as it is where nothing has left the window.
    void ShowDelivered(const paper::Delivered& delivered);

    const reports::Document& document_;
    ReportDesk& desk_;
    Date day_;
    ReportCanvas* canvas_;
    QBoxLayout* bars_ = nullptr;
    QLineEdit* search_ = nullptr;
    QLabel* found_ = nullptr;
    QLabel* pageLabel_ = nullptr;
    QLabel* zoomLabel_ = nullptr;
    QLabel* status_ = nullptr;
    std::vector<FlatButton*> backButtons_;
    std::vector<FlatButton*> forwardButtons_;
    std::vector<ReportMatch> matches_;
    std::size_t currentMatch_ = 0;
    QString searched_;
};

} // namespace kova::qt
