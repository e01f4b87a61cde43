// The preview's bars: buttons, page and size, search.

#include "toolkits/qt/report/report_preview.hpp"

#include "toolkits/qt/look/flat_button.hpp"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace kova::qt {

namespace {

/// Between the two bars: beside each other, and one below the other.
constexpr int WideGap = 12;
constexpr int NarrowGap = 6;

QLabel* BarLabel(QBoxLayout& bar, const char* name)
{
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    bar.addWidget(label);
    return label;
}

} // namespace

void ReportPreview::MakeBars(QBoxLayout& column)
{
    // They break into two rows instead of keeping the window wider than a small screen.
    column.setSizeConstraint(QLayout::SetNoConstraint);
    bars_ = new QBoxLayout(QBoxLayout::LeftToRight);
    bars_->setContentsMargins(12, 8, 12, 8);
    bars_->setSpacing(WideGap);
    for (const auto make : {&ReportPreview::MakePageBar, &ReportPreview::MakeLookBar}) {
        auto* bar = new QHBoxLayout;
        bar->setSpacing(4);
        (this->*make)(*bar);
        bars_->addLayout(bar);
    }
    bars_->setStretch(1, 1);
    column.addLayout(bars_);
}

FlatButton* ReportPreview::Button(QBoxLayout& bar, const char* name, const char* icon, const char* text)
{
    const auto command = std::ranges::find_if(
        Commands(), [&](const Command& each) { return QLatin1String(each.key) == QLatin1String(name); });
    auto* button = new FlatButton(this);
    const QString purpose = QString::fromUtf8(command->purpose);
    button->setObjectName(QString::fromLatin1(name));
    button->setText(QString::fromUtf8(text));
    button->setToolTip(purpose + QStringLiteral(" (%1)").arg(QString::fromLatin1(command->key)));
    button->setAccessibleName(purpose);
    button->setFocusPolicy(Qt::TabFocus);
    button->SetIconName(icon);
    button->SetBordered(true);
    const int textWidth = QFontMetrics(button->font()).horizontalAdvance(button->text());
    const int iconWidth = *icon == '\0' ? 0 : 26;
    button->setFixedSize(std::max(34, (*text == '\0' ? 0 : textWidth + iconWidth) + 20), 34);
    connect(button, &QAbstractButton::clicked, this, [this, act = command->act] { (this->*act)(); });
    bar.addWidget(button);
    return button;
}

void ReportPreview::MakePageBar(QBoxLayout& bar)
{
    Button(bar, "Ctrl+P", "imprimir", "Imprimir");
    Button(bar, "Ctrl+S", "", "Salvar em PDF");
    bar.addSpacing(8);
    backButtons_ = {Button(bar, "Home", "primeira", ""), Button(bar, "PgUp", "anterior", "")};
    pageLabel_ = BarLabel(bar, "pagina");
    pageLabel_->setAlignment(Qt::AlignCenter);
    pageLabel_->setMinimumWidth(110);
    forwardButtons_ = {Button(bar, "PgDown", "posterior", ""), Button(bar, "End", "ultima", "")};
    bar.addStretch();
}

void ReportPreview::MakeLookBar(QBoxLayout& bar)
{
    Button(bar, "Ctrl+-", "", "−");
    zoomLabel_ = BarLabel(bar, "tamanho");
    zoomLabel_->setAlignment(Qt::AlignCenter);
    zoomLabel_->setMinimumWidth(44);
    Button(bar, "Ctrl++", "", "+");
    Button(bar, "Ctrl+L", "", "Ajustar à largura");
    bar.addSpacing(8);
    MakeSearch(bar);
    found_ = BarLabel(bar, "achados");
    status_ = BarLabel(bar, "situacao");
    bar.setStretchFactor(status_, 1);
    status_->setMinimumWidth(0);
    status_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    Button(bar, "Esc", "", "Fechar");
}

void ReportPreview::MakeSearch(QBoxLayout& bar)
{
    search_ = new QLineEdit;
    search_->setObjectName(QStringLiteral("localizar"));
    search_->setPlaceholderText(QStringLiteral("Localizar"));
    search_->setAccessibleName(QStringLiteral("Localizar um texto"));
    search_->setToolTip(QStringLiteral("Localizar um texto (Ctrl+F)"));
    search_->setClearButtonEnabled(true);
    search_->setFixedHeight(34);
    search_->setMinimumWidth(110);
    search_->setMaximumWidth(240);
    connect(search_, &QLineEdit::textChanged, this, [this] { Search(); });
    connect(search_, &QLineEdit::returnPressed, this, [this] { NextMatch(); });
    bar.addWidget(search_);
}

void ReportPreview::ArrangeBars()
{
    const QMargins margins = bars_->contentsMargins();
    int needed = margins.left() + margins.right() + WideGap;
    for (int bar = 0; bar < bars_->count(); ++bar)
        needed += bars_->itemAt(bar)->minimumSize().width();
    const bool isWide = width() >= needed;
    bars_->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    bars_->setSpacing(isWide ? WideGap : NarrowGap);
}

void ReportPreview::resizeEvent(QResizeEvent* event)
{
    ArrangeBars();
    QDialog::resizeEvent(event);
}

} // namespace kova::qt
