#pragma once

#include "tests/support/box_answers.hpp"
#include "tests/support/sqlite_file.hpp"

#include "registers/registers_page.hpp"
#include "system/temporary_folder.hpp"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace kova::registers::test {

/// "Cadastros" of a shop with three customers, two animals and the usual service types, used by mouse and
/// keys. What is stored is looked up in the file by the engine's own interface.
class CadastrosTest : public testing::Test {
protected:
    CadastrosTest();

    /// Shows the page, in the place of another one, with those actions behind "Mais...".
    void Open(RecordActions actions);
    /// The same with drafts, where a folder is named for them. `answers` are those to the boxes that
    /// open with them.
    void OpenWithDrafts(const QString& drafts, std::initializer_list<const char*> answers = {});

    /// Turns to a register as a press of its name does.
    void TurnTo(const char* title);

    /// The widget of that kind and name on the screen that is in front.
    template <class Kind> Kind& Find(const char* name)
    {
        for (Kind* one : page_->findChildren<Kind*>(QString::fromUtf8(name))) {
            if (one->isVisible())
                return *one;
        }
        throw std::runtime_error(std::string("there is no ") + name);
    }

    void Press(const char* button);
    /// Picks an entry of "Mais..." by its letter.
    void Pick(Qt::Key letter);
    /// Keys to whatever has the keyboard.
    void Keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Into whatever has the keyboard, letter by letter.
    void Type(const char* text);
    /// Over what stands in the box.
    void TypeOver(const char* box, const char* text);
    std::string TextOf(const char* box) { return Find<QLineEdit>(box).text().toStdString(); }
    std::string Focused();

    /// The rows on show, the cells of their first columns, joined by "|".
    std::vector<std::string> Rows(int columns = 1);
    /// The texts below refused fields.
    std::vector<std::string> Reasons();
    std::string Told() { return Find<QLabel>("recado").text().toStdString(); }

    /// The buttons that the next boxes are answered with; what they said is kept in `boxes_`.
    void Answer(std::initializer_list<const char*> buttons) { answers_.Give(buttons); }

    /// Acts in the dialog of that name as soon as it takes input.
    void InDialog(const char* name, const std::function<void(QDialog&)>& act);

    std::vector<std::string> Stored(const char* statement);
    /// Changes the file as another desk does.
    void Elsewhere(const char* statement) { Stored(statement); }

    system::TemporaryFolder folder_{"cadastros-"};
    const std::string file_ = (folder_.Path() / "loja.db").string();
    /// Who is at the desk.
    family::Author author_;
    std::unique_ptr<RegistersPage> page_;
    std::vector<std::string> boxes_;

private:
    void ShowPage(std::initializer_list<const char*> answers);
    QWidget& Keyboard();

    kova::test::BoxAnswers answers_{boxes_};
};

} // namespace kova::registers::test
