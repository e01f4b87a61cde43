#include "toolkits/qt/boxes/edit_view.hpp"

#include "toolkits/common/form.hpp"
#include "toolkits/qt/boxes/line_edit.hpp"
#include "toolkits/qt/look/theme.hpp"
#include "toolkits/qt/look/tool_tip.hpp"

#include <QKeyEvent>

#include <algorithm>

namespace kova::qt {

namespace {

constexpr std::size_t MostFormerTexts = 50;

// The model counts code points, Qt counts 16-bit units.
int UnitsOf(const QString& text, std::size_t characters)
{
    int units = 0;
    for (const char32_t character : text.toStdU32String()) {
        if (characters == 0)
            break;
        --characters;
        units += QChar::requiresSurrogates(character) ? 2 : 1;
    }
    return units;
}

std::size_t CharactersOf(const QString& text, int units)
{
    return static_cast<std::size_t>(text.left(units).toUcs4().size());
}

} // namespace

EditView::EditView(toolkit::EditCore& model, QWidget* parent)
    : ViewOf(model, new FieldFrame(parent)), editor_(&Shown().Editor())
{
    editor_->setFont(Shown().font());
    editor_->setAccessibleName(Shown().accessibleName());
    editor_->setPlaceholderText(FromText(model.Design().placeholder));
    editor_->filterKey = [this](QKeyEvent& event) { return FilterKey(event); };
    editor_->pasteText = [this](const QString& text) {
        Remember();
        Paste(text);
    };
    editor_->typeText = [this](const QString& text) {
        Remember();
        TypeAll(text);
    };
    editor_->eraseSelection = [this] {
        Remember();
        GetModel().UserErases();
    };
    editor_->undoEdit = [this] { Undo(); };
    editor_->canUndo = [this] { return !former_.empty(); };
    QObject::connect(editor_, &QLineEdit::textEdited, editor_, [this](const QString& text) {
        GetModel().UserEdits(ToText(text));
        ShowContent();
    });
    QObject::connect(editor_, &QLineEdit::cursorPositionChanged, editor_, [this] { ForwardSelection(); });
    QObject::connect(editor_, &QLineEdit::selectionChanged, editor_, [this] { ForwardSelection(); });
    WatchFocus(editor_);
}

QWidget* EditView::FocusWindow() const { return editor_; }

LineEdit* EditView::Editor() const { return editor_; }

void EditView::ShowContent()
{
    showing_ = true;
    const QString text = FromText(GetModel().ShownText());
    if (editor_->text() != text)
        editor_->setText(text);
    showing_ = false;
    ShowSelection();
}

void EditView::ShowSelection()
{
    showing_ = true;
    const QString text = editor_->text();
    const toolkit::TextSelection selection = GetModel().ShownSelection();
    const int anchor = UnitsOf(text, selection.anchor);
    const int caret = UnitsOf(text, selection.caret);
    if (anchor == caret) {
        editor_->deselect();
        editor_->setCursorPosition(caret);
    } else {
        editor_->setSelection(anchor, caret - anchor);
    }
    showing_ = false;
}

void EditView::ShowLook()
{
    const ControlDesign& design = Core().Design();
    const bool locked = !GetModel().AllowsTyping();
    Shown().SetLocked(locked);
    Shown().SetPaper(GroundColor(design.backColor, locked ? look::LockedPaper : look::Paper));
    QPalette palette = editor_->palette();
    palette.setColor(QPalette::Text, Ink());
    editor_->setPalette(palette);
}

QColor EditView::Ink() const
{
    const ControlDesign& design = Core().Design();
    return InkColor(design.foreColor, look::Ink, GroundColor(design.backColor, look::Paper));
}

void EditView::ShowToolTip()
{
    WidgetView::ShowToolTip();
    editor_->setToolTip(ToolTipOf(Core().Design().toolTipTextOfTextBox));
}

void EditView::ForwardSelection()
{
    if (showing_)
        return;
    const QString text = editor_->text();
    const int caret = editor_->cursorPosition();
    int anchor = caret;
    if (editor_->hasSelectedText())
        anchor = caret == editor_->selectionStart() ? editor_->selectionEnd() : editor_->selectionStart();
    showing_ = true;
    GetModel().UserSelects(CharactersOf(text, anchor), CharactersOf(text, caret));
    showing_ = false;
}

bool EditView::FilterKey(const QKeyEvent& event)
{
    if (TakesKey(event))
        return true;
    if (event.matches(QKeySequence::Undo)) {
        Undo();
        return true;
    }
    if (FilterEditing(event))
        return true;
    // The editor would type the letter of a key with Alt, which is somebody's mnemonic or nobody's.
    if (!(event.modifiers() & Qt::ControlModifier))
        return (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) && !event.text().isEmpty();
    // Of the control keys only copying, selecting and moving stay: the editor's other ones would
    // change its text behind the model.
    switch (event.key()) {
    case Qt::Key_A:
    case Qt::Key_C:
    case Qt::Key_Insert:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End: return false;
    default: return true;
    }
}

bool EditView::FilterEditing(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Backspace) {
        Remember();
        GetModel().UserErases();
        return true;
    }
    if (event.key() == Qt::Key_Delete && !(event.modifiers() & Qt::ShiftModifier)) {
        Remember();
        GetModel().UserErasesForward();
        return true;
    }
    const QString text = event.text();
    const bool commands = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (text.isEmpty() || !text.at(0).isPrint() || commands)
        return false;
    Remember();
    TypeAll(text);
    return true;
}

void EditView::TypeAll(const QString& text)
{
    const auto characters = text.toUcs4();
    for (const auto character : characters)
        GetModel().UserTypes(static_cast<char32_t>(character));
}

void EditView::Paste(const QString& text)
{
    QString line = text;
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    line.remove(QLatin1Char('\r'));
    const toolkit::TextSelection selection = GetModel().ShownSelection();
    const QString shown = FromText(GetModel().ShownText());
    const int first = UnitsOf(shown, std::min(selection.anchor, selection.caret));
    const int last = UnitsOf(shown, std::max(selection.anchor, selection.caret));
    GetModel().UserEdits(ToText(shown.left(first) + line + shown.mid(last)));
}

void EditView::Remember()
{
    if (!GetModel().AllowsTyping() || (!former_.empty() && former_.back() == GetModel().ShownText()))
        return;
    if (former_.size() == MostFormerTexts)
        former_.erase(former_.begin());
    former_.push_back(GetModel().ShownText());
}

void EditView::Undo()
{
    if (former_.empty() || !GetModel().AllowsTyping())
        return;
    const Text text = former_.back();
    former_.pop_back();
    GetModel().UserEdits(text);
}

} // namespace kova::qt
