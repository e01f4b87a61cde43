#pragma once

#include <QTimer>

#include <deque>
#include <initializer_list>
#include <string>
#include <vector>

namespace kova::test {

/// Presses buttons of the message boxes that open, one of each box, by a mouse. What the boxes said is kept
/// in `told`. A box without the wanted button fails the test, and so does one that reads its text as markup.
class BoxAnswers {
public:
    explicit BoxAnswers(std::vector<std::string>& told);

    /// The buttons that the next boxes are answered with.
    void Give(std::initializer_list<const char*> buttons);

    /// No button is left to be pressed.
    bool AreGiven() const { return buttons_.empty(); }

private:
    void AnswerBox();

    std::vector<std::string>& told_;
    std::deque<std::string> buttons_;
    QTimer timer_;
};

} // namespace kova::test
