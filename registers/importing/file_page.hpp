#pragma once

#include "family/csv/importing.hpp"

#include <QWidget>

#include <optional>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace kova::screens {
class FieldFrame;
}

namespace kova::registers {

/// Which file goes into which register, and how its first lines were understood.
class FilePage : public QWidget {
public:
    FilePage(std::string_view registerName, QWidget* parent);

    /// What is to be brought in; nothing, with the reason at its field, where that cannot be said yet.
    std::optional<family::csv::ImportOrder> Order();
    /// Reads the file anew, where one is named, and shows how it begins.
    void Look();

private:
    void LayOut();
    void ChooseFile();
    void OfferKnown();
    /// Shows nothing of a file any more.
    void Clear();
    void ShowPreview(const family::csv::FileText& file);
    const family::csv::Register& Into() const;

    QLineEdit* path_;
    QComboBox *register_, *known_, *encoding_;
    screens::FieldFrame* pathFrame_;
    QPushButton* choose_;
    QLabel* told_;
    QTableWidget* preview_;
};

} // namespace kova::registers
