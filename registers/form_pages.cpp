#include "registers/form_pages.hpp"

#include "family/registers/description/related_list.hpp"
#include "registers/related_panel.hpp"
#include "screens/scrolled_body.hpp"
#include "screens/tabs.hpp"

#include <QStackedWidget>
#include <QVBoxLayout>

namespace kova::registers {

namespace {

constexpr int Form = 0;

} // namespace

FormPages::FormPages(const family::registers::Register& of, const Desk& desk, QWidget& form, QWidget* parent)
    : QWidget(parent),
      tabs_(new screens::Tabs(QStringLiteral("Páginas da ficha"), this)),
      pages_(new QStackedWidget(this))
{
    tabs_->setObjectName(QStringLiteral("paginas"));
    tabs_->addTab(QStringLiteral("Ficha"));
    pages_->addWidget(new screens::ScrolledBody(&form));
    for (const family::registers::RelatedList* list : of.Related()) {
        const std::string_view title = list->Title();
        tabs_->addTab(QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size())));
        panels_.push_back(new RelatedPanel(*list, desk, pages_));
        pages_->addWidget(panels_.back());
    }
    tabs_->setToolTip(QStringLiteral("Próxima página: F6"));
    tabs_->setVisible(!panels_.empty());
    connect(tabs_, &QTabBar::currentChanged, pages_, &QStackedWidget::setCurrentIndex);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tabs_);
    layout->addWidget(pages_, 1);
}

void FormPages::ShowForm() { tabs_->setCurrentIndex(Form); }

void FormPages::ShowRow(family::Key key)
{
    for (RelatedPanel* panel : panels_)
        panel->Show(key);
}

void FormPages::ShowPrices(bool areShown)
{
    for (RelatedPanel* panel : panels_)
        panel->ShowPrices(areShown);
}

bool FormPages::TurnToNext()
{
    tabs_->setCurrentIndex((tabs_->currentIndex() + 1) % tabs_->count());
    if (tabs_->currentIndex() == Form)
        return false;
    pages_->currentWidget()->setFocus(Qt::TabFocusReason);
    return true;
}

} // namespace kova::registers
