#include "family/presentation/error_window.hpp"

#include "family/presentation/failure_words.hpp"
#include "family/presentation/scrolled_body.hpp"

#include <QClipboard>
#include <QFontInfo>
#include <QFrame>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>

namespace kova::family {

namespace {

constexpr int MostWidth = 560;
constexpr int MarkSize = 40;
/// What the window takes of its width beside the texts at the mark and at the titles of the values.
constexpr int BesideWords = 48 + MarkSize + 16;
constexpr int BesideValues = 48 + 80;
constexpr int MostLinesOfWords = 8;
constexpr int MostLinesOfAValue = 3;

QString ToQString(const Text& text) { return QString::fromStdString(text); }

/// As the product's boxes have it.
QPixmap MakeMark(double scale)
{
    QPixmap mark(QSize(MarkSize, MarkSize) * scale);
    mark.setDevicePixelRatio(scale);
    mark.fill(Qt::transparent);
    QPainter painter(&mark);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(204, 48, 48));
    painter.drawEllipse(QRectF(1, 1, MarkSize - 2, MarkSize - 2));
    painter.setPen(QPen(Qt::white, 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(14, 14), QPointF(MarkSize - 14, MarkSize - 14));
    painter.drawLine(QPointF(MarkSize - 14, 14), QPointF(14, MarkSize - 14));
    return mark;
}

QFont Scaled(QFont font, double factor, bool bold = false)
{
    font.setPixelSize(static_cast<int>(QFontInfo(font).pixelSize() * factor + 0.5));
    font.setBold(bold);
    return font;
}

/// Lines that a text takes in that width, at least one.
int LinesOf(const QPlainTextEdit& field, int width)
{
    const QRect area(0, 0, width - 2 * static_cast<int>(field.document()->documentMargin()), 10000);
    const QRect needed =
        field.fontMetrics().boundingRect(area, Qt::TextWrapAnywhere | Qt::AlignLeft, field.toPlainText());
    return std::max(
        1, (needed.height() + field.fontMetrics().lineSpacing() - 1) / field.fontMetrics().lineSpacing());
}

QLabel* Muted(QLabel* label)
{
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, colours.color(QPalette::PlaceholderText));
    label->setPalette(colours);
    return label;
}

} // namespace

ErrorWindow::ErrorWindow(const ErrorReport& report, QWidget* parent) : QDialog(parent), report_(report)
{
    setObjectName(QStringLiteral("falha"));
    setWindowTitle(ToQString(report.application));
    setWindowModality(Qt::ApplicationModal);
    setMinimumWidth(std::min(MostWidth, RoomOnScreen(*this).width()));
    setBackgroundRole(QPalette::Base);

    auto* rule = new QFrame(this);
    rule->setFrameStyle(QFrame::HLine | QFrame::Plain);
    rule->setForegroundRole(QPalette::Midlight);
    auto* content = new QVBoxLayout;
    content->setSpacing(12);
    content->addLayout(MakeHeading());
    content->addWidget(rule);
    content->addLayout(MakeValues());
    content->addStretch(1);
    auto* body = new ScrolledBody(content, this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(12);
    layout->addWidget(body, 1);
    layout->addLayout(MakeButtons());
    FitToScreen(*this, *body);
}

QLayout* ErrorWindow::MakeHeading()
{
    auto* mark = new QLabel(this);
    mark->setPixmap(MakeMark(devicePixelRatioF()));
    mark->setAccessibleName(tr("Erro"));

    auto* title = new QLabel(tr("Ocorreu uma falha."), this);
    title->setObjectName(QStringLiteral("heading"));
    title->setFont(Scaled(title->font(), 1.2, true));

    const FailureWords words = WordsFor(report_);
    QPlainTextEdit* what =
        MakeText(words.what, QStringLiteral("what"), minimumWidth() - BesideWords, MostLinesOfWords);
    what->setAccessibleName(tr("O que aconteceu"));
    auto* advice = new QLabel(ToQString(words.look + "\n" + words.act), this);
    advice->setObjectName(QStringLiteral("advice"));
    advice->setTextFormat(Qt::PlainText);
    advice->setWordWrap(true);
    // Aligned with the text of a field, which has a margin of its own.
    advice->setContentsMargins(4, 0, 4, 0);
    title->setContentsMargins(4, 0, 4, 0);

    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    for (QWidget* widget :
         {static_cast<QWidget*>(title), static_cast<QWidget*>(what), static_cast<QWidget*>(advice)})
        column->addWidget(widget);
    auto* heading = new QHBoxLayout;
    heading->setSpacing(12);
    heading->addWidget(mark, 0, Qt::AlignTop);
    heading->addLayout(column, 1);
    return heading;
}

QLayout* ErrorWindow::MakeValues()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    AddValue(*grid, tr("&Número"), report_.number, QStringLiteral("number"));
    AddValue(*grid, tr("&Descrição"), OwnDescription(report_), QStringLiteral("description"));
    AddValue(*grid, tr("&Local"), report_.place, QStringLiteral("place"));
    return grid;
}

void ErrorWindow::AddValue(QGridLayout& grid, const QString& title, const Text& text,
                           const QString& objectName)
{
    QPlainTextEdit* field = MakeText(text, objectName, minimumWidth() - BesideValues, MostLinesOfAValue);
    field->setAccessibleName(QString(title).remove(QLatin1Char('&')));
    auto* label = Muted(new QLabel(title, this));
    label->setFont(Scaled(font(), 0.85));
    label->setContentsMargins(0, 4, 0, 0);
    label->setBuddy(field);
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0, Qt::AlignTop);
    grid.addWidget(field, row, 1);
}

QPlainTextEdit* ErrorWindow::MakeText(const Text& text, const QString& objectName, int width, int mostLines)
{
    auto* field = new QPlainTextEdit(ToQString(text), this);
    field->setObjectName(objectName);
    field->setFrameStyle(QFrame::NoFrame);
    field->setReadOnly(true);
    field->setTabChangesFocus(true);
    field->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    field->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    field->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    if (mostLines == MostLinesOfAValue)
        field->setFont(Scaled(font(), 0.85));
    const int lines = std::min(LinesOf(*field, width), mostLines);
    field->setFixedHeight(lines * field->fontMetrics().lineSpacing()
                          + 2 * static_cast<int>(field->document()->documentMargin()) + 2);
    return field;
}

QLayout* ErrorWindow::MakeButtons()
{
    copied_ = new QLabel(this);
    copied_->setObjectName(QStringLiteral("copied"));

    auto* copy = new QPushButton(tr("&Copiar"), this);
    copy->setObjectName(QStringLiteral("copy"));
    copy->setAccessibleDescription(tr("Copia o número, a descrição e o local da falha, por inteiro"));
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
