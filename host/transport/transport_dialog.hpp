#pragma once

#include "agenda/contracts/platform.hpp"
#include "family/data/engine/database.hpp"

#include <QDialog>

#include <memory>
#include <string>

class QDateEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

namespace kova::screens {
class RefusalLabel;
}

namespace kova::host {

class StopModel;

/// Where somebody of the shop's has to be on a day, to fetch animals and to take them home, in one list by
/// time and district, and printed as a sheet to go by.
class TransportDialog : public QDialog {
public:
    struct Surroundings {
        std::shared_ptr<family::Database> database;
        Toolkit& toolkit;
        std::string company;
    };

    /// Opens on that day. Fails as FindTransportStops.
    TransportDialog(const Surroundings& surroundings, Date day, QWidget* parent);

private:
    Date Day() const;
    void Read();
    /// Reads the day anew; what cannot be read is told.
    void ReadTelling();
    void Print();

    const Surroundings surroundings_;
    StopModel* stops_;
    QDateEdit* day_;
    QLineEdit* driver_;
    QLabel* count_;
    QTableView* table_;
    screens::RefusalLabel* failure_;
    QPushButton* print_;
};

} // namespace kova::host
