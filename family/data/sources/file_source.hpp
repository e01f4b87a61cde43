#pragma once

#include "family/data/engine/database.hpp"
#include "family/data/migrations/current_migrations.hpp"

#include <functional>
#include <optional>

/// The data source as an SQLite file; see data_source.hpp for what each does.
namespace kova::family {

std::optional<std::string> CheckFileSource(const std::string& path, Migrations migrations);
std::shared_ptr<Database> OpenFile(const std::string& path, Migrations migrations,
                                   MigrationReport* done = nullptr);
std::unique_ptr<Database> OpenFileForReading(const std::string& path);
void CreateFile(const std::string& path, const std::function<void(Database&)>& fill);

/// Makes a database of what `fill` writes, of the empty file at `path`, with the schema that those steps
/// make. Where it fails, with a DatabaseFailure, the file is of no use.
void BuildFile(const std::string& path, const std::function<void(Database&)>& fill,
               Migrations migrations = CurrentMigrations());

} // namespace kova::family
