#pragma once

#include "tools/agenda-data/command.hpp"

#include <iostream>

namespace kova::data {

/// Runs the program: 0 done, 1 the data cannot be read or written, 2 the command line is wrong. What
/// went wrong is written to `error` in Portuguese. `isByComputersClock` tells whether the moment is by the
/// computer's own clock, and so may be wrong.
int Run(std::span<const std::string> words, DateTime now, std::ostream& output, std::ostream& error,
        const Input& input = {std::cin}, bool isByComputersClock = false);

// Each in the file of its name.

extern const Command BackupCommand;
extern const Command CheckCommand;
extern const Command CopyCommand;
extern const Command CreateCommand;
extern const Command DemoCommand;
extern const Command ExportCommand;
extern const Command ForgetCommand;
extern const Command GenerateCommand;
extern const Command HistoryCommand;
extern const Command ImportCommand;
extern const Command MigrateCommand;
extern const Command PersonCommand;
extern const Command ResetPasswordCommand;
extern const Command RestoreCommand;
extern const Command ServerRolesCommand;
extern const Command ArchiveAuditCommand;
extern const Command UndeleteCommand;
extern const Command UndoImportCommand;

} // namespace kova::data
