#include "screens/run_alone.hpp"

#include <QApplication>
#include <QDialog>

namespace kova::screens {

void RunAlone(QDialog& dialog)
{
    QObject::connect(&dialog, &QDialog::finished, &dialog, [] { QCoreApplication::exit(); });
    dialog.setModal(true);
    dialog.show();
    QApplication::exec();
}

} // namespace kova::screens
