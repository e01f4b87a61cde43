#include "screens/grows_with_contents.hpp"

#include <QDialog>
#include <QEvent>
#include <QLayout>

namespace kova::screens {

namespace {

class Growth : public QObject {
public:
    explicit Growth(QDialog& dialog) : QObject(&dialog), dialog_(dialog) { dialog.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest) {
            const int needed = dialog_.layout()->totalHeightForWidth(dialog_.width());
            if (needed > dialog_.height())
                dialog_.resize(dialog_.width(), needed);
        }
        return false;
    }

private:
    QDialog& dialog_;
};

} // namespace

void GrowWithContents(QDialog& dialog) { new Growth(dialog); }

} // namespace kova::screens
