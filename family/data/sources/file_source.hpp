#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/engine/migration.hpp"

#include <functional>
#include <optional>

/// The data source as an SQLite file; see data_source.hpp for what each does.
namespace kova::family {

std::optional<std::string> CheckFileSource(const std::string& path, Migrations migrations);
std::shared_ptr<Database> OpenFile(const std::string& path, Migrations migrations);
/// Name of the copy that OpenFile makes before a migration to that version.
std::string BackupName(const std::string& path, int version);
std::unique_ptr<Database> OpenFileForReading(const std::string& path);
void CreateFile(const std::string& path, const std::function<void(Database&)>& fill);

/// Makes a database with the newest schema and what `fill` writes of the empty file at `path`. Where it
/// fails, with a DatabaseFailure, the file is of no use.
void BuildFile(const std::string& path, const std::function<void(Database&)>& fill);

} // namespace kova::family
