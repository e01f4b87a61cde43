#pragma once

#include "tests/support/box_answers.hpp"
#include "tests/support/sqlite_file.hpp"

#include "history/history_page.hpp"
#include "system/temporary_folder.hpp"

#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace kova::history::test {

/// "Histórico" of a shop with one customer, whom Ana has added and changed twice, used by mouse and keys.
/// What is stored is looked up in the file by the engine's own interface.
class HistoricoTest : public testing::Test {
protected:
    HistoricoTest();

    /// Shows the page, in the place of another one.
    void Open();

    /// The widget of that kind and name, where it is on show.
    template <class Kind> Kind& Find(const char* name)
    {
        for (Kind* one : page_->findChildren<Kind*>(QString::fromUtf8(name))) {
            if (one->isVisible())
                return *one;
        }
        throw std::runtime_error(std::string("there is no ") + name);
    }

    /// Keys to whatever has the keyboard.
    void Keys(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Into that box over what stands there, and Enter.
    void TypeInto(const char* box, const char* text);
    /// The entry of that text, by keys.
    void Choose(const char* box, const char* entry);
    void Press(const char* button);
    std::string Focused();

    /// What was done, of each line on show.
    std::vector<std::string> Acts();
    /// "CAPTION: BEFORE > AFTER" of the line that is marked.
    std::vector<std::string> Fields();
    std::string TextOf(const char* label);

    /// The buttons that the next boxes are answered with; what they said is kept in `boxes_`.
    void Answer(std::initializer_list<const char*> buttons) { answers_.Give(buttons); }

    std::vector<std::string> Stored(const std::string& statement);

    system::TemporaryFolder folder_{"historico-"};
    const std::string file_ = (folder_.Path() / "loja.db").string();
    family::Author author_{"1", "Ana", "2026-11-20 11:00:00", "BALCAO-2"};
    std::unique_ptr<HistoryPage> page_;
    std::vector<std::string> boxes_;

private:
    QWidget& Keyboard();

    kova::test::BoxAnswers answers_{boxes_};
};

} // namespace kova::history::test
