#include "registers/doubles_question.hpp"

#include "screens/grows_with_contents.hpp"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kova::registers {

namespace {

using family::registers::LikelyDouble;
using What = DoublesAnswer::What;

constexpr int UsualWidth = 560;
constexpr int RoomAroundRow = 10;
constexpr int MostRows = 5;

QString WordsOf(const LikelyDouble& one)
{
    QStringList reasons;
    for (const std::string& reason : one.reasons)
        reasons += QString::fromStdString(reason);
    return QString::fromStdString(one.shown) + QStringLiteral("\nTem ") + reasons.join(QStringLiteral("; "))
        + QLatin1Char('.');
}

class DoublesQuestion : public QDialog {
public:
    DoublesQuestion(QWidget& over, const std::vector<LikelyDouble>& doubles)
        : QDialog(&over), list_(new QListWidget(this))
    {
        setObjectName(QStringLiteral("parecidos"));
        setWindowTitle(QStringLiteral("Cadastro parecido"));
        setBackgroundRole(QPalette::Base);
        Fill(doubles);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(Explanation(QStringLiteral("Este cadastro talvez já exista:")));
        layout->addWidget(list_, 1);
        layout->addWidget(Explanation(QStringLiteral(
            "Quem abre o cadastro existente deixa de lado o que foi digitado aqui e não foi salvo.")));
        layout->addWidget(Buttons(std::ranges::none_of(doubles, &LikelyDouble::bars)));
        screens::GrowWithContents(*this, {UsualWidth, 0});
        list_->setFocus();
    }

    DoublesAnswer Ask()
    {
        exec();
        return answer_;
    }

private:
    QLabel* Explanation(const QString& text)
    {
        auto* label = new QLabel(text, this);
        label->setWordWrap(true);
        return label;
    }

    void Fill(const std::vector<LikelyDouble>& doubles)
    {
        list_->setObjectName(QStringLiteral("existentes"));
        list_->setAccessibleName(QStringLiteral("Cadastros existentes"));
        list_->setWordWrap(true);
        const int rowHeight = 2 * list_->fontMetrics().lineSpacing() + RoomAroundRow;
        for (const LikelyDouble& one : doubles) {
            auto* item = new QListWidgetItem(WordsOf(one), list_);
            item->setData(Qt::UserRole, QVariant::fromValue(static_cast<qlonglong>(one.key)));
            item->setToolTip(item->text());
        }
        list_->setCurrentRow(0);
        list_->setMinimumHeight(rowHeight * std::min(list_->count(), MostRows) + RoomAroundRow);
        connect(list_, &QListWidget::itemActivated, this, [this] { End(What::Open); });
    }

    QDialogButtonBox* Buttons(bool maySave)
    {
        auto* buttons = new QDialogButtonBox(this);
        const auto add = [&](const char* name, const QString& text, What what,
                             QDialogButtonBox::ButtonRole role) {
            QPushButton* button = buttons->addButton(text, role);
            button->setObjectName(QLatin1String(name));
            connect(button, &QPushButton::clicked, this, [this, what] { End(what); });
            return button;
        };
        add("abrir", QStringLiteral("&Abrir o cadastro existente"), What::Open, QDialogButtonBox::AcceptRole)
            ->setDefault(true);
        if (maySave)
            add("salvarAssimMesmo", QStringLiteral("&Salvar assim mesmo"), What::Save,
                QDialogButtonBox::DestructiveRole);
        add("voltar", QStringLiteral("&Voltar"), What::Stay, QDialogButtonBox::RejectRole);
        return buttons;
    }

    void End(What what)
    {
        answer_ = {what, list_->currentItem()->data(Qt::UserRole).toLongLong()};
        accept();
    }

    QListWidget* list_;
    DoublesAnswer answer_;
};

} // namespace

DoublesAnswer AskAboutDoubles(QWidget& over, const std::vector<LikelyDouble>& doubles)
{
    return DoublesQuestion(over, doubles).Ask();
}

} // namespace kova::registers
