#pragma once

#include "tests/window/shop.hpp"

#include "family/data/audit/author.hpp"

#include <QLineEdit>
#include <QString>
#include <QWidget>

namespace kova::window_test {

/// Roles that every shop begins with.
inline constexpr family::Key Administration = 1, Reception = 3;

/// A demonstration shop that gets users, who sign in.
class ShopWithUsers : public Shop {
protected:
    void AddUser(const std::string& name, family::Key role, const std::string& password,
                 const std::string& pin = "");
    /// Ana administers, with "Gato-Preto 1"; Lia works at the reception, with "Laço Azul 22" or 2580.
    void AddAnaAndLia();

    static QWidget* Window();
    /// The dialog of that name in front; null where it is not.
    static QWidget* Dialog(const char* name);
    static QWidget* Question() { return Dialog("Entrada"); }
    template <class Kind> static Kind& In(QWidget* dialog, const char* name)
    {
        return *dialog->findChild<Kind*>(QString::fromUtf8(name));
    }
    /// Below the fields of the question.
    static std::string Told();
    /// Whether the question takes a try.
    static bool IsReady();
    static std::string Title() { return Window()->windowTitle().toStdString(); }

    static void Fill(QLineEdit& box, const QString& text);
    /// "" leaves the name as it stands there.
    static void Enter(const QString& name, const QString& secret);
    Receptionist& Enters(const char* name, const char* secret);
    Receptionist& WaitsForAnswer();

    std::string LastAuthor() const;

    const family::Author owner_{
        .code = "0", .name = "root", .moment = "2026-11-20 09:00:00", .isOwner = true};
};

} // namespace kova::window_test
