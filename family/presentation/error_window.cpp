#include "family/presentation/error_window.hpp"

#include <QClipboard>
#include <QFontInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>

namespace kova::family {

namespace {

constexpr int WindowWidth = 560;
constexpr int LongestFieldInLines = 9;

QString ToQString(const Text& text) { return QString::fromStdString(text); }

/// Lines that the text takes in a field as wide as the window, at least one.
int LinesOf(const QPlainTextEdit& field)
{
    const QRect area(0, 0, WindowWidth - 80, 10000);
    const QRect needed =
        field.fontMetrics().boundingRect(area, Qt::TextWrapAnywhere | Qt::AlignLeft, field.toPlainText());
    return std::clamp(needed.height() / field.fontMetrics().lineSpacing(), 1, LongestFieldInLines);
}

int HeightOf(const QPlainTextEdit& field)
{
    const int frame = 2 * field.frameWidth() + 2 * static_cast<int>(field.document()->documentMargin());
    return LinesOf(field) * field.fontMetrics().lineSpacing() + frame + 4;
}

} // namespace

ErrorWindow::ErrorWindow(const ErrorReport& report, QWidget* parent) : QDialog(parent), report_(report)
{
    setWindowTitle(ToQString(report.application));
    setWindowModality(Qt::ApplicationModal);
    setMinimumWidth(WindowWidth);
    PaintWhite();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(6);
    layout->addLayout(MakeHeading());
    layout->addSpacing(8);
    AddField(*layout, tr("&Número"), report.number, QStringLiteral("number"));
    AddField(*layout, tr("&Descrição"), report.description, QStringLiteral("description"));
    AddField(*layout, tr("&Local"), report.place, QStringLiteral("place"));
    layout->addSpacing(10);
    layout->addLayout(MakeButtons());
}

void ErrorWindow::PaintWhite()
{
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Qt::white);
    setPalette(colours);
}

QLayout* ErrorWindow::MakeHeading()
{
    auto* icon = new QLabel(this);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxCritical).pixmap(40, 40));
    icon->setAccessibleName(tr("Erro"));

    auto* text = new QLabel(tr("Ocorreu uma falha e a operação não foi concluída."), this);
    QFont larger = text->font();
    larger.setPixelSize(QFontInfo(larger).pixelSize() * 6 / 5);
    larger.setBold(true);
    text->setFont(larger);
    text->setWordWrap(true);

    auto* heading = new QHBoxLayout;
    heading->setSpacing(16);
    heading->addWidget(icon, 0, Qt::AlignTop);
    heading->addWidget(text, 1);
    return heading;
}

void ErrorWindow::AddField(QVBoxLayout& layout, const QString& title, const Text& text,
                           const QString& objectName)
{
    auto* field = new QPlainTextEdit(ToQString(text), this);
    field->setObjectName(objectName);
    field->setReadOnly(true);
    field->setTabChangesFocus(true);
    field->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    field->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    field->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    field->setAccessibleName(QString(title).remove(QLatin1Char('&')));
    field->setFixedHeight(HeightOf(*field));

    auto* label = new QLabel(title, this);
    label->setBuddy(field);
    layout.addWidget(label);
    layout.addWidget(field);
}

QLayout* ErrorWindow::MakeButtons()
{
    copied_ = new QLabel(this);
    copied_->setObjectName(QStringLiteral("copied"));

    auto* copy = new QPushButton(tr("&Copiar"), this);
    copy->setObjectName(QStringLiteral("copy"));
    copy->setAccessibleDescription(tr("Copia o número, a descrição e o local da falha"));
    copy->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, this, &ErrorWindow::CopyReport);

    auto* close = new QPushButton(tr("&Fechar"), this);
    close->setObjectName(QStringLiteral("close"));
    close->setDefault(true);
    close->setFocus();
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(copied_, 1);
    buttons->addWidget(copy);
    buttons->addWidget(close);
    return buttons;
}

void ErrorWindow::CopyReport()
{
    QGuiApplication::clipboard()->setText(ToQString(AsText(report_)));
    copied_->setText(tr("Copiado para a área de transferência."));
}

} // namespace kova::family
