#include "host/shell/notice_bar.hpp"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace kova::host {

namespace {

constexpr QColor Background(255, 244, 204);

} // namespace

NoticeBar::NoticeBar(QWidget* parent) : QFrame(parent), text_(new QLabel(this))
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Background);
    colours.setColor(QPalette::WindowText, Qt::black);
    setPalette(colours);
    setAutoFillBackground(true);

    text_->setObjectName(QStringLiteral("aviso"));
    text_->setWordWrap(true);
    text_->setTextFormat(Qt::PlainText);
    auto* closing = new QToolButton(this);
    closing->setText(QStringLiteral("Fechar aviso"));
    closing->setFocusPolicy(Qt::NoFocus);
    connect(closing, &QToolButton::clicked, this, &QWidget::hide);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 12, 6);
    layout->addWidget(text_, 1);
    layout->addWidget(closing);
    hide();
}

void NoticeBar::Show(const QString& text)
{
    text_->setText(text);
    setVisible(!text.isEmpty());
}

} // namespace kova::host
