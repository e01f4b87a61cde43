#pragma once

#include <sys/types.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kova::test {

/// A PostgreSQL server of the test program's own: its data in a temporary folder, reached only through a
/// socket there, gone with its owner, also where the program is killed. Run by the user "postgres" where the
/// tests are run by the superuser. What it has answered outlasts its processes, but not the computer.
class PostgresServer {
public:
    /// The one that the tests of the program share, started at its first need.
    static PostgresServer& Shared();

    PostgresServer();
    ~PostgresServer();
    PostgresServer(const PostgresServer&) = delete;
    PostgresServer& operator=(const PostgresServer&) = delete;

    /// Starts a server that was stopped or killed, and waits until it answers. It ends with the thread that
    /// has started it.
    void Start();
    /// Ends it at once, with every connection, as a shutdown of the computer does.
    void Stop();
    /// Kills all its processes.
    void Kill();
    /// Starts it anew so that it answers on a port of "localhost" too, there on protected connections with a
    /// password only. Takes the files of its certificate and key.
    void AnswerOnPort(const std::string& certificate, const std::string& key);

    /// Then starts it anew so that it answers there on unprotected connections alone.
    void AnswerUnprotected();

    /// The folder of its socket.
    const std::string& Folder() const { return folder_; }
    /// The usual one, or that of AnswerOnPort.
    int Port() const { return port_; }
    std::string AddressOf(const std::string& database) const;

    /// Name of a new database: empty, or a copy of the one with that name.
    std::string MakeDatabase(const std::string& like = "template0");
    void DropDatabase(const std::string& name);
    /// Name of a database that `fill` has filled at the first call; to be copied, and not to be connected to.
    std::string Model(const std::string& name, const std::function<void(const std::string& address)>& fill);

    /// Runs a statement in a database. Answers its rows, columns joined by "|".
    std::vector<std::string> Run(const std::string& database, const std::string& statement) const;

private:
    static constexpr int UsualPort = 5432;

    std::string Program(const std::string& name) const;
    void Spawn();
    void Quit(int signal);

    std::string programs_, folder_;
    pid_t process_ = 0;
    int port_ = UsualPort;
    bool isProtected_ = true;
    int databases_ = 0;
    std::map<std::string, std::string> models_;
};

/// A database on a server that goes with its owner.
class PostgresDatabase {
public:
    explicit PostgresDatabase(PostgresServer& server, const std::string& like = "template0")
        : server_(server), name_(server.MakeDatabase(like))
    {
    }
    ~PostgresDatabase();
    PostgresDatabase(const PostgresDatabase&) = delete;
    PostgresDatabase& operator=(const PostgresDatabase&) = delete;

    std::string Address() const { return server_.AddressOf(name_); }
    const std::string& Name() const { return name_; }
    std::vector<std::string> Run(const std::string& statement) const { return server_.Run(name_, statement); }

private:
    PostgresServer& server_;
    std::string name_;
};

} // namespace kova::test
