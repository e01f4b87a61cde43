#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

class QWidget;

namespace kova::host {

/// Covers the contents of all windows of the application, as long as it is there, also of those that come
/// up meanwhile; menus and lists that are open are closed. A message that comes up stays behind the dialog.
class Cover : public QObject {
public:
    /// That dialog stays as it is.
    explicit Cover(QWidget& besides);
    ~Cover() override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void Put(QWidget& window);
    void ComeToTheFront();

    QWidget& besides_;
    std::vector<QPointer<QWidget>> sheets_;
};

} // namespace kova::host
