#include "host/shell/notice_bar.hpp"

#include <QHBoxLayout>
#include <QLabel>
#include <QStringList>
#include <QToolButton>

#include <algorithm>

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
    // Not the window's own, whatever it is.
    setBackgroundRole(QPalette::Window);
    setAutoFillBackground(true);

    text_->setObjectName(QStringLiteral("aviso"));
    text_->setWordWrap(true);
    text_->setTextFormat(Qt::PlainText);
    auto* closing = new QToolButton(this);
    closing->setText(QStringLiteral("Fechar aviso"));
    closing->setFocusPolicy(Qt::NoFocus);
    connect(closing, &QToolButton::clicked, this, &NoticeBar::Close);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 12, 6);
    layout->addWidget(text_, 1);
    layout->addWidget(closing);
    hide();
}

void NoticeBar::Show(const QString& subject, const QString& text)
{
    const auto told = std::find_if(notices_.begin(), notices_.end(),
                                   [&](const auto& notice) { return notice.first == subject; });
    if (told != notices_.end())
        notices_.erase(told);
    if (!text.isEmpty())
        notices_.emplace_back(subject, text);
    QStringList lines;
    for (const auto& notice : notices_)
        lines.append(notice.second);
    text_->setText(lines.join(QLatin1Char('\n')));
    setVisible(!lines.isEmpty());
}

void NoticeBar::Close()
{
    notices_.clear();
    hide();
}

} // namespace kova::host
