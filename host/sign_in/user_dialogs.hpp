#pragma once

#include "registers/record_actions.hpp"

class QWidget;

namespace kova::host {

class Door;

/// Whoever is at the desk gives himself another password or PIN.
void ChangeMySecrets(Door& door, QWidget& over);

/// Asks who administers a shop that has no users, and makes that user, who is at the desk from then on.
void BeginWithUsers(Door& door, QWidget& over);

/// Asks after how many minutes without a hand at it the window is locked.
void AskForIdleMinutes(Door& door, QWidget& over);

/// "Senha e PIN..." beside a user, for those who administer the users.
registers::RecordAction SecretsAction();

} // namespace kova::host
