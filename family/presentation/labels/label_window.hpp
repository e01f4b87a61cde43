#pragma once

#include "family/presentation/labels/label_desk.hpp"
#include "family/presentation/labels/label_keys.hpp"
#include "family/presentation/labels/label_output.hpp"
#include "family/presentation/labels/label_pages.hpp"
#include "reports/qt/delivery.hpp"
#include "reports/qt/font_metrics.hpp"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QSpinBox;
class QToolButton;

namespace kova::family {

class LabelPicture;
class LabelSheetView;

/// What the window is opened with again.
struct LabelChoice {
    Text sheetKey = {};
    bool withNickname = false;

    friend bool operator==(const LabelChoice&, const LabelChoice&) = default;
};

/// The window that prints an address on label sheets: which sheets, the first free label on the first one,
/// how many labels; how they will come out; printer or PDF. Escape closes, F1
/// lists the keys.
class LabelWindow : public QDialog {
public:
    /// The desk must outlive it. The name of a file carries the day.
    LabelWindow(PostalAddress address, const LabelChoice& choice, LabelDesk& desk, Date day,
                QWidget* parent = nullptr);

    LabelChoice Choice() const;
    const LabelSheet& Sheet() const { return *run_.sheet; }
    /// What would be printed now.
    const reports::Document& Pages() const { return pages_; }

private:
    QLayout* MakeFields(const LabelChoice& choice);
    void AddSheets(QGridLayout& grid, const LabelChoice& choice);
    void AddNumbers(QGridLayout& grid);
    QLayout* MakeSheetSide();
    QLayout* MakeSheetTurner();
    QLayout* MakeButtons();
    QPushButton* Button(QLayout& row, const char* name, const QString& text, void (LabelWindow::*act)());

    /// Other sheets were chosen: a fresh one is put in.
    void FollowSheet();
    void ChooseFirst(int position);
    void Refresh();
    void ShowSheet(int sheet);
    QString Summary() const;
    /// What can be pressed now.
    std::vector<WindowKey> Keys() const;
    void Print();
    void SavePdf();
    /// Leaves the line of status as it is where nothing has left the window.
    void ShowDelivered(const paper::Delivered& delivered);

    PostalAddress address_;
    LabelDesk& desk_;
    const Date day_;
    paper::FontMetrics metrics_;
    LabelRun run_;
    reports::Document pages_;
    QComboBox* sheets_ = nullptr;
    QSpinBox* row_ = nullptr;
    QSpinBox* column_ = nullptr;
    QSpinBox* copies_ = nullptr;
    QCheckBox* nickname_ = nullptr;
    QLabel* summary_ = nullptr;
    QLabel* sheetNumber_ = nullptr;
    QLabel* status_ = nullptr;
    QToolButton* before_ = nullptr;
    QToolButton* after_ = nullptr;
    LabelPicture* picture_ = nullptr;
    LabelSheetView* view_ = nullptr;
};

} // namespace kova::family
