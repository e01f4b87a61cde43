#include "host/picture.hpp"

#include "agenda/contracts/failure_detail.hpp"
#include "system/path_text.hpp"

#include <QCoreApplication>
#include <QPixmap>
#include <QSaveFile>
#include <QWidget>

#include <stdexcept>

namespace kova::host {

namespace {

void WaitUntilIdle()
{
    // A round of events may post the next one (a layout, then its painting).
    constexpr int rounds = 5;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

} // namespace

void SavePicture(QWidget& window, const std::filesystem::path& file)
{
    WaitUntilIdle();
    std::error_code ignored;
    if (file.has_parent_path())
        std::filesystem::create_directories(file.parent_path(), ignored);
    const std::string name = system::TextOf(file);
    QSaveFile target(QString::fromStdString(name));
    const bool isOpen = target.open(QIODevice::WriteOnly);
    // Customers stand in it. Where a disk knows no rights, it is written all the same.
    if (isOpen)
        target.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    if (!isOpen || !window.grab().save(&target, "PNG") || !target.commit()) {
        throw std::runtime_error(WithDetail(
            "A imagem \"" + name
                + "\" não pôde ser gravada. Verifique o espaço no disco, ou informe em --picture um "
                  "arquivo de uma pasta em que você pode gravar.",
            target.errorString().toStdString()));
    }
}

} // namespace kova::host
