#pragma once

#include "host/first_start/shop_question.hpp"
#include "tests/unit/host/program_run.hpp"
#include "tests/unit/host/with_application.hpp"

#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace kova::host::test {

/// The question for a shop, answered as a user does: by the mouse and by keys.
class TheQuestionForAShop : public WithApplication {
protected:
    ShopQuestion& Open(std::vector<RememberedShop> remembered = {})
    {
        question_.emplace(ShopQuestion::Surroundings{std::move(remembered), "/casa/ana/demonstracao.db",
                                                     "Ana Maria", folder_.Path().string(), look_},
                          nullptr);
        question_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&*question_));
        return *question_;
    }

    /// The one on the page that is in front.
    template <class Kind> Kind& Find(const char* name)
    {
        for (Kind* one : question_->findChildren<Kind*>(QString::fromUtf8(name))) {
            if (one->isVisible())
                return *one;
        }
        ADD_FAILURE() << "there is no " << name << " on the page";
        throw std::logic_error(name);
    }

    void Press(const char* button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }
    void Type(const char* box, const char* text)
    {
        Find<QLineEdit>(box).setFocus();
        Find<QLineEdit>(box).clear();
        for (const QChar letter : QString::fromUtf8(text))
            QTest::sendKeyEvent(QTest::Click, &Find<QLineEdit>(box), Qt::Key_unknown, QString(letter),
                                Qt::NoModifier);
    }
    /// From the company to the last step, and on.
    void MakeWithTheRestAsItIs()
    {
        Press("avancar");
        GiveAPassword();
        for (int step = 0; step < 3; ++step)
            Press("avancar");
    }
    void GiveAPassword(const char* password = "Gato-Preto 1")
    {
        Type("senha", password);
        Type("senhaDeNovo", password);
    }
    /// In a row of the services, as by hand.
    void Correct(int row, int column, const std::string& text)
    {
        auto& table = Find<QTableWidget>("servicos");
        table.setCurrentCell(row, column);
        QTest::keyClick(&table, Qt::Key_F2);
        QWidget* editor = QApplication::focusWidget();
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, QString::fromStdString(text));
        QTest::keyClick(editor, Qt::Key_Return);
    }
    /// To the services of a shop that is made.
    void BeginAShop()
    {
        Open();
        Press("criar");
        Type("fantasia", "Céu");
        Press("avancar");
        GiveAPassword();
        Press("avancar");
    }
    /// Chooses a file in the dialog that comes next; leaves the dialog where there is none.
    void AnswerFileDialog(const std::optional<fs::path>& file)
    {
        QTimer::singleShot(0, &*question_, [file] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            if (file)
                dialog->selectFile(QString::fromStdString(file->string()));
            QMetaObject::invokeMethod(dialog, file ? "accept" : "reject");
        });
    }
    std::string TextOf(const char* box) { return Find<QLineEdit>(box).text().toStdString(); }

    /// All the reasons that stand below fields, one in a line.
    std::string Reasons()
    {
        std::string reasons;
        for (const QLineEdit* box : question_->findChildren<QLineEdit*>()) {
            if (box->isVisible() && !box->accessibleDescription().isEmpty())
                reasons += box->accessibleDescription().toStdString() + "\n";
        }
        return reasons;
    }

    /// Nothing while it stands there.
    std::optional<std::string> Answer()
    {
        if (question_->isVisible() || !question_->Chosen())
            return std::nullopt;
        return question_->Chosen()->source;
    }

    void AwaitOutcome()
    {
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return !question_->isVisible() || Find<QPushButton>("abrir").isEnabled(); }));
    }

    TemporaryFolder folder_;
    SourceTrial::Look look_ = [](const std::string& source) {
        return source == "/casa/ana/loja.db"
            ? std::nullopt
            : std::optional<std::string>("O arquivo \"" + source + "\" não existe.");
    };
    std::optional<ShopQuestion> question_;
};

} // namespace kova::host::test
