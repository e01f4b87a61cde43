#pragma once

#include "family/data/engine/database.hpp"

#include <memory>

/// Connections to SQLite files, each for its purpose. None looks at the schema. Each fails with a
/// DatabaseFailure.
namespace kova::family {

/// The file's connection text for the back end.
std::string FileConnection(const std::string& path, const std::string& options = {});

/// To read and write beside others. Fails where the file's disk does not let several programs do so.
std::unique_ptr<Database> ConnectForWork(const std::string& path);

/// To read beside others, also where the file or its folder may not be written. Leaves nothing behind.
std::unique_ptr<Database> ConnectForReading(const std::string& path);

/// To change the schema: others may take minutes to let it.
std::unique_ptr<Database> ConnectForSchemaChange(const std::string& path);

/// To fill a file that nobody sees before it is complete: without a log, and without waiting for the disk.
std::unique_ptr<Database> ConnectForBuilding(const std::string& path);

} // namespace kova::family
