#include "registers/names_panel.hpp"

#include "screens/field_frame.hpp"

#include <QBoxLayout>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>

namespace kova::registers {

NamesPanel::NamesPanel(QListWidget& names, std::initializer_list<QPushButton*> buttons, QWidget* parent)
    : QWidget(parent),
      names_(names),
      chosen_(new QComboBox(this)),
      layout_(new QBoxLayout(QBoxLayout::TopToBottom, this))
{
    chosen_->setObjectName(QStringLiteral("cadastro"));
    chosen_->setAccessibleName(QStringLiteral("Cadastro"));
    chosen_->setMinimumHeight(screens::BoxHeight);
    chosen_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    chosen_->hide();
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(8);
    layout_->addWidget(&names_, 1);
    layout_->addWidget(chosen_, 1);
    int widest = names_.minimumWidth();
    for (QPushButton* button : buttons) {
        layout_->addWidget(button);
        widest = std::max(widest, button->sizeHint().width());
    }
    names_.setFixedWidth(widest);
    connect(chosen_, &QComboBox::activated, this,
            [this](int index) { names_.setCurrentRow(chosen_->itemData(index).toInt()); });
    connect(&names_, &QListWidget::currentRowChanged, this,
            [this](int row) { chosen_->setCurrentIndex(chosen_->findData(row)); });
}

void NamesPanel::SetNarrow(bool isNarrow)
{
    layout_->setDirection(isNarrow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    names_.setVisible(!isNarrow);
    chosen_->setVisible(isNarrow);
}

void NamesPanel::Follow()
{
    chosen_->clear();
    for (int row = 0; row < names_.count(); ++row) {
        if (!names_.item(row)->isHidden())
            chosen_->addItem(names_.item(row)->text(), row);
    }
    chosen_->setCurrentIndex(chosen_->findData(names_.currentRow()));
}

} // namespace kova::registers
