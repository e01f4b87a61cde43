#include "registers/field_editor.hpp"

#include "family/data/engine/database_failure.hpp"
#include "family/data/engine/fold_text.hpp"
#include "family/registers/registers.hpp"
#include "registers/register_words.hpp"
#include "screens/field_frame.hpp"
#include "toolkits/qt/look/theme.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStringListModel>

#include <charconv>

namespace kova::registers {

namespace {

using family::registers::FieldInfo;
using family::registers::FieldKind;
using family::registers::Listed;
using family::registers::Offer;

constexpr int LinesOfChannels = 3;
constexpr int MostProposals = 12;
const std::string SeveralMeant = "há mais de um com este nome: escolha na lista.";

class LineEditor : public FieldEditor {
public:
    explicit LineEditor(const FieldInfo& field) : box_(new QLineEdit)
    {
        if (field.longest > 0)
            box_->setMaxLength(static_cast<int>(field.longest));
        QObject::connect(box_, &QLineEdit::textEdited, box_, [this] { onEdited(); });
    }

    QWidget& Widget() override { return *box_; }
    void Show(const std::string& text) override
    {
        box_->setText(QString::fromStdString(text));
        box_->setCursorPosition(0);
    }
    std::string Text() const override { return box_->text().toStdString(); }
    void SetReadOnly(bool isReadOnly) override { box_->setReadOnly(isReadOnly); }

protected:
    QLineEdit& Box() { return *box_; }
    const QLineEdit& Box() const { return *box_; }

private:
    QLineEdit* box_;
};

class YesNoEditor : public FieldEditor {
public:
    YesNoEditor() : box_(new QCheckBox(QStringLiteral("Sim")))
    {
        QObject::connect(box_, &QCheckBox::clicked, box_, [this] { onEdited(); });
    }

    QWidget& Widget() override { return *box_; }
    void Show(const std::string& text) override { box_->setChecked(text == "Sim"); }
    std::string Text() const override { return box_->isChecked() ? "Sim" : "Não"; }

private:
    QCheckBox* box_;
};

/// One of a few words; one more, empty, where the field may be left out.
class ChoiceEditor : public FieldEditor {
public:
    explicit ChoiceEditor(const FieldInfo& field) : box_(new QComboBox)
    {
        if (!field.required)
            box_->addItem(QString());
        for (const std::string_view choice : field.choices)
            box_->addItem(Shown(choice));
        box_->setMinimumHeight(screens::BoxHeight);
        QObject::connect(box_, &QComboBox::activated, box_, [this] { onEdited(); });
    }

    QWidget& Widget() override { return *box_; }
    /// A word that is none of the field's is shown all the same, so that nothing is changed unseen.
    void Show(const std::string& text) override
    {
        const QString word = QString::fromStdString(text);
        if (box_->findText(word) < 0 && !word.isEmpty())
            box_->addItem(word);
        box_->setCurrentIndex(box_->findText(word));
    }
    std::string Text() const override { return box_->currentText().toStdString(); }

private:
    QComboBox* box_;
};

/// A list that is filled as it opens, and a box to type what it may not hold yet.
class OfferBox : public QComboBox {
public:
    explicit OfferBox(AskOffers offers) : offers_(std::move(offers))
    {
        setEditable(true);
        setInsertPolicy(QComboBox::NoInsert);
        setMinimumHeight(screens::BoxHeight);
        setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    }

    void showPopup() override
    {
        Fill();
        QComboBox::showPopup();
    }

    void Fill()
    {
        const QString typed = currentText();
        clear();
        for (const Offer& offer : offers_())
            addItem(QString::fromStdString(offer.shown), QString::fromStdString(offer.text));
        setCurrentIndex(findText(typed));
        setEditText(typed);
    }

private:
    AskOffers offers_;
};

class OfferEditor : public FieldEditor {
public:
    explicit OfferEditor(AskOffers offers) : box_(new OfferBox(std::move(offers)))
    {
        QObject::connect(box_, &QComboBox::activated, box_, [this] { onEdited(); });
        QObject::connect(box_->lineEdit(), &QLineEdit::textEdited, box_, [this] { onEdited(); });
    }

    QWidget& Widget() override { return *box_; }
    void Show(const std::string& text) override
    {
        box_->Fill();
        const int row = box_->findData(QString::fromStdString(text));
        box_->setCurrentIndex(row);
        if (row < 0)
            box_->setEditText(QString::fromStdString(text));
        // In a narrow box the beginning is what is seen.
        box_->lineEdit()->home(false);
    }
    // A new breed or species has a name that nobody offers: saving tells.
    std::string Settle() override
    {
        const std::string typed = family::FoldText(box_->currentText().toStdString());
        if (typed.empty() || box_->findText(box_->currentText()) >= 0)
            return {};
        try {
            box_->Fill();
        } catch (const family::DatabaseFailure&) {
            return {};
        }
        return Choose(typed);
    }
    std::string Text() const override
    {
        const int row = box_->findText(box_->currentText());
        return row < 0 ? box_->currentText().toStdString() : box_->itemData(row).toString().toStdString();
    }

private:
    std::string Choose(const std::string& typed)
    {
        std::vector<int> with;
        for (int row = 0; row < box_->count(); ++row) {
            const std::string shown = family::FoldText(box_->itemText(row).toStdString());
            if (shown == typed || box_->itemData(row).toString().toStdString() == typed) {
                box_->setCurrentIndex(row);
                return {};
            }
            if (shown.find(typed) != std::string::npos)
                with.push_back(row);
        }
        if (with.size() == 1)
            box_->setCurrentIndex(with.front());
        return with.size() > 1 ? SeveralMeant : std::string();
    }

    OfferBox* box_;
};

/// A row of a large register: found as one types, shown as "10 - José Antônio".
class RowEditor : public LineEditor {
public:
    RowEditor(const FieldInfo& field, const family::registers::Register& of, const Desk& desk)
        : LineEditor(field), register_(of), desk_(desk), proposals_(new QStringListModel(&Box()))
    {
        Box().setMaxLength(200);
        Box().setPlaceholderText(QStringLiteral("Código ou parte do nome"));
        auto* completer = new QCompleter(proposals_, &Box());
        completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
        completer->setMaxVisibleItems(MostProposals);
        Box().setCompleter(completer);
        QObject::connect(&Box(), &QLineEdit::textEdited, proposals_,
                         [this](const QString& text) { Propose(text); });
        QObject::connect(completer, qOverload<const QString&>(&QCompleter::activated), &Box(),
                         [this] { onEdited(); });
    }

    void Show(const std::string& text) override
    {
        const family::Key key = KeyIn(text);
        const auto rows = key == 0 ? std::vector<family::registers::ListRow>()
                                   : register_.Rows(*desk_.database, std::span(&key, 1));
        LineEditor::Show(rows.empty() ? text : ShownRow(rows.front()));
    }

    std::string Settle() override
    {
        const std::string typed = Text();
        if (typed.empty() || KeyIn(typed) != 0)
            return {};
        try {
            const auto found = register_.Search(*desk_.database, typed, 0, 2, Listed::Active);
            if (found.found == 1)
                LineEditor::Show(ShownRow(found.rows.front()));
            return found.found == 1 ? "" : found.found == 0 ? "não foi encontrado." : SeveralMeant;
        } catch (const family::DatabaseFailure&) {
            return {};
        }
    }

    /// The code alone, where one stands at the beginning.
    std::string Text() const override
    {
        const std::string text = LineEditor::Text();
        const std::size_t dash = text.find(" - ");
        return dash == std::string::npos ? text : text.substr(0, dash);
    }

private:
    static family::Key KeyIn(const std::string& text)
    {
        family::Key key = 0;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), key);
        return read.ec == std::errc() && read.ptr == text.data() + text.size() ? key : 0;
    }

    static std::string ShownRow(const family::registers::ListRow& row)
    {
        return std::to_string(row.key) + " - " + (row.cells.empty() ? std::string() : row.cells.front());
    }

    // What cannot be found for now is not proposed; saving tells why.
    void Propose(const QString& text)
    {
        QStringList found;
        try {
            for (const auto& row :
                 register_.Search(*desk_.database, text.toStdString(), 0, MostProposals, Listed::Active).rows)
                found += QString::fromStdString(ShownRow(row));
        } catch (const family::DatabaseFailure&) {
            found.clear();
        }
        proposals_->setStringList(found);
    }

    const family::registers::Register& register_;
    const Desk& desk_;
    QStringListModel* proposals_;
};

/// One channel in each line; the register's text has semicolons between them.
class ChannelsEditor : public FieldEditor {
public:
    ChannelsEditor() : box_(new QPlainTextEdit)
    {
        box_->setTabChangesFocus(true);
        box_->setFixedHeight(box_->fontMetrics().lineSpacing() * LinesOfChannels + 14);
        box_->setPlaceholderText(
            QStringLiteral("Um em cada linha, como\nCelular: (11) 91234-5678\nE-mail: ana@exemplo.com"));
        QObject::connect(box_, &QPlainTextEdit::textChanged, box_, [this] {
            if (!isShowing_)
                onEdited();
        });
    }

    QWidget& Widget() override { return *box_; }
    void Show(const std::string& text) override
    {
        isShowing_ = true;
        box_->setPlainText(QString::fromStdString(text).replace(QStringLiteral("; "), QStringLiteral("\n")));
        isShowing_ = false;
    }
    std::string Text() const override
    {
        QStringList lines = box_->toPlainText().split(QLatin1Char('\n'));
        for (QString& line : lines)
            line = line.trimmed();
        lines.removeAll(QString());
        return lines.join(QStringLiteral("; ")).toStdString();
    }
    void SetReadOnly(bool isReadOnly) override
    {
        box_->setReadOnly(isReadOnly);
        QPalette colours = box_->palette();
        colours.setColor(QPalette::Base, isReadOnly ? qt::look::LockedPaper : qt::look::Paper);
        box_->setPalette(colours);
    }

private:
    QPlainTextEdit* box_;
    bool isShowing_ = false;
};

bool IsLarge(const FieldInfo& field)
{
    return field.refersTo == family::registers::CustomerRegister().Name().name;
}

} // namespace

std::unique_ptr<FieldEditor> MakeEditor(const FieldInfo& field, AskOffers offers, const Desk& desk)
{
    switch (field.kind) {
    case FieldKind::YesNo: return std::make_unique<YesNoEditor>();
    case FieldKind::Choice:
    case FieldKind::State: return std::make_unique<ChoiceEditor>(field);
    case FieldKind::Channels: return std::make_unique<ChannelsEditor>();
    case FieldKind::Reference:
        if (IsLarge(field))
            return std::make_unique<RowEditor>(field, family::registers::CustomerRegister(), desk);
        return std::make_unique<OfferEditor>(std::move(offers));
    default: return std::make_unique<LineEditor>(field);
    }
}

} // namespace kova::registers
