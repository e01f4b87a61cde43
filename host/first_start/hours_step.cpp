#include "host/first_start/hours_step.hpp"

#include "agenda/contracts/date_time.hpp"
#include "family/data/stores/new_shop.hpp"
#include "screens/refusal_label.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace kova::host {

namespace {

constexpr const char* Names[] = {"Domingo",      "Segunda-feira", "Terça-feira", "Quarta-feira",
                                 "Quinta-feira", "Sexta-feira",   "Sábado"};
constexpr const char* UsualBeginning = "08:00";
constexpr const char* UsualEnd = "18:00";
constexpr const char* EndOfDay = "24:00";
constexpr int BoxWidth = 80;
constexpr int BoxHeight = 32;

QLineEdit* TimeBox(const QString& name, const char* text, QWidget* parent)
{
    auto* box = new QLineEdit(QString::fromUtf8(text), parent);
    box->setAccessibleName(name);
    box->setMaxLength(5);
    box->setFixedSize(BoxWidth, BoxHeight);
    box->setTextMargins(6, 0, 6, 0);
    return box;
}

/// "hh:mm" as it is kept; "" where the text is no time.
std::string TimeIn(const QLineEdit& box)
{
    const std::string text = box.text().trimmed().toStdString();
    if (text == EndOfDay)
        return text;
    const auto time = ParseTime(text);
    return time ? FormatTime(*time) : std::string();
}

} // namespace

HoursStep::HoursStep(QWidget* parent) : NewShopStep(parent), refusal_(new screens::RefusalLabel(this))
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    auto* heading = new QLabel(QStringLiteral("Os dias em que a loja abre"), this);
    heading->setFont(qt::MakeFont("Arial", 14, true));
    auto* explanation = new QLabel(
        QStringLiteral("Um agendamento em um dia sem expediente só é marcado depois de uma pergunta."), this);
    explanation->setWordWrap(true);
    grid->addWidget(heading, 0, 0, 1, 5);
    grid->addWidget(explanation, 1, 0, 1, 5);
    refusal_->setObjectName(QStringLiteral("recusa"));
    constexpr int FirstRow = 2;
    for (int at = 0; at < static_cast<int>(days_.size()); ++at) {
        Day& day = days_[static_cast<std::size_t>(at)];
        const QString name = QString::fromUtf8(Names[at]);
        day.isOpen = new QCheckBox(name, this);
        day.isOpen->setObjectName(name);
        day.from = TimeBox(name + QStringLiteral(", abre às"), UsualBeginning, this);
        day.from->setObjectName(name + QStringLiteral(" das"));
        day.to = TimeBox(name + QStringLiteral(", fecha às"), UsualEnd, this);
        day.to->setObjectName(name + QStringLiteral(" às"));
        connect(day.isOpen, &QCheckBox::toggled, this, [this, at](bool isOpen) {
            days_[static_cast<std::size_t>(at)].from->setEnabled(isOpen);
            days_[static_cast<std::size_t>(at)].to->setEnabled(isOpen);
            refusal_->Tell({});
        });
        day.isOpen->setChecked(true);
        // Most shops rest on Sundays.
        day.isOpen->setChecked(at != 0);
        grid->addWidget(day.isOpen, FirstRow + at, 0);
        grid->addWidget(new QLabel(QStringLiteral("das"), this), FirstRow + at, 1);
        grid->addWidget(day.from, FirstRow + at, 2);
        grid->addWidget(new QLabel(QStringLiteral("às"), this), FirstRow + at, 3);
        grid->addWidget(day.to, FirstRow + at, 4, Qt::AlignLeft);
    }
    const int last = FirstRow + static_cast<int>(days_.size());
    grid->addWidget(refusal_, last, 0, 1, 5);
    grid->setRowStretch(last + 1, 1);
    grid->setColumnStretch(4, 1);
    setFocusProxy(days_.front().isOpen);
}

bool HoursStep::Accepts()
{
    bool isEverOpen = false;
    for (const Day& day : days_) {
        if (!day.isOpen->isChecked())
            continue;
        isEverOpen = true;
        const std::string from = TimeIn(*day.from), to = TimeIn(*day.to);
        if (!from.empty() && from < to)
            continue;
        refusal_->Tell(
            day.isOpen->text()
            + QStringLiteral(": informe duas horas, como 08:00 e 18:00, a segunda depois da primeira."));
        (from.empty() || from == EndOfDay ? day.from : day.to)->setFocus();
        return false;
    }
    if (isEverOpen)
        return true;
    refusal_->Tell(QStringLiteral("Marque ao menos um dia em que a loja abre."));
    days_.front().isOpen->setFocus();
    return false;
}

void HoursStep::Fill(family::NewShop& shop) const
{
    for (int at = 0; at < static_cast<int>(days_.size()); ++at) {
        const Day& day = days_[static_cast<std::size_t>(at)];
        if (day.isOpen->isChecked())
            shop.openingHours.push_back({0, at + 1, TimeIn(*day.from), TimeIn(*day.to)});
    }
}

} // namespace kova::host
