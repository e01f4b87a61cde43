#pragma once

#include "toolkits/common/form.hpp"

#include <QMessageBox>
#include <QWidget>

#include <string>
#include <vector>

/// What stands on the screen, and the names by which acts speak of it: a control's "frmLista.kvcmdAdicionar",
/// another widget's object name, "KIND:N" for the Nth of a kind of nameless widgets in the window in front,
/// "@popup" for the open menu or list, "@front" for the window in front, "@main" for the application's.
namespace kova::monkey {

/// The application's window; null once it is closed.
QWidget* MainWindow();
/// What gets the keys: the open menu or list, else the innermost modal window, else the application's. May be
/// null.
QWidget* Front();
/// The form in front; null where something else is there.
toolkit::FormModel* FormInFront();
QMessageBox* BoxInFront();
/// Where somebody signs in, or changes places; null where nobody is asked.
QWidget* SignInInFront();
/// The form of that name, where it is on show.
toolkit::FormModel* FormOnShow(const std::string& name);
/// The form's control where it is on show, with its widget; null where not.
QWidget* ControlOnShow(const toolkit::FormModel& form, const std::string& name);

/// Whether another area than the agenda is on show, with nothing before it.
bool IsInOtherArea();
/// Whether the window in front shows how far its work is, which takes as long as the machine lets it.
bool IsAtWork();
/// Whether what is in front takes input now.
bool IsSettled();
/// "frmLista" and why it takes no input, what a box says, the name of another window.
std::string WhatIsInFront();

/// The widget that an act speaks of; null where it is not on show.
QWidget* Find(const std::string& name);
/// Widgets in the window in front that a user might press, and their names.
std::vector<std::pair<std::string, QWidget*>> Targets();

} // namespace kova::monkey
