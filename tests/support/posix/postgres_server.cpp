#include "tests/support/postgres_server.hpp"

#include <libpq-fe.h>

#include <fcntl.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

namespace kova::test {

namespace fs = std::filesystem;

namespace {

/// The user that runs the server; null where it is the one who runs the tests.
const passwd* ServerUser()
{
    if (geteuid() != 0)
        return nullptr;
    const passwd* user = getpwnam("postgres");
    if (user == nullptr)
        throw std::runtime_error("the package postgresql is missing: there is no user postgres");
    return user;
}

/// Where the packages put the server's programs; the newest version.
std::string FindPrograms()
{
    std::string found;
    for (const auto& version : fs::directory_iterator("/usr/lib/postgresql")) {
        const fs::path programs = version.path() / "bin";
        if (fs::exists(programs / "initdb") && programs.string() > found)
            found = programs.string();
    }
    if (found.empty())
        throw std::runtime_error("the package postgresql is missing");
    return found;
}

/// In the process that becomes a program of the server: another user, silent, and it ends with the tests.
[[noreturn]] void Become(const passwd* user, const std::string& log, const std::vector<std::string>& words)
{
    if (user != nullptr && (setgid(user->pw_gid) != 0 || setuid(user->pw_uid) != 0))
        _exit(126);
    prctl(PR_SET_PDEATHSIG, SIGQUIT);
    const int output = open(log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    dup2(output, STDOUT_FILENO);
    dup2(output, STDERR_FILENO);
    std::vector<char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    _exit(127);
}

pid_t Launch(const std::string& folder, const std::vector<std::string>& words)
{
    const passwd* user = ServerUser();
    const pid_t child = fork();
    if (child == 0)
        Become(user, folder + "/log", words);
    if (child < 0)
        throw std::runtime_error("no process could be made");
    return child;
}

[[noreturn]] void Fail(const std::string& folder, const std::string& what)
{
    std::ifstream log(folder + "/log");
    throw std::runtime_error(what + "\n" + std::string(std::istreambuf_iterator<char>(log), {}));
}

/// The processes that a process has made and that still run.
std::vector<pid_t> ChildrenOf(pid_t process)
{
    const std::string id = std::to_string(process);
    std::ifstream list("/proc/" + id + "/task/" + id + "/children");
    return {std::istream_iterator<pid_t>(list), {}};
}

/// In memory where there is enough of it. Each test has a database of its own, some hundred files that are
/// made and soon removed: a disk's file system keeps away from what has just been removed, and searches long
/// for what it may give out.
fs::path ParentFolder()
{
    constexpr std::uintmax_t Enough = 2ULL << 30;
    const fs::path memory = "/dev/shm";
    std::error_code unknown;
    const bool hasRoom =
        access(memory.c_str(), W_OK) == 0 && fs::space(memory, unknown).available >= Enough && !unknown;
    return hasRoom ? memory : fs::temp_directory_path();
}

std::string MakeFolder()
{
    std::string folder = (ParentFolder() / "postgres-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr)
        throw std::runtime_error("no temporary folder could be made");
    if (const passwd* user = ServerUser();
        user != nullptr && chown(folder.c_str(), user->pw_uid, user->pw_gid) != 0)
        throw std::runtime_error("the temporary folder could not be given away");
    return folder;
}

/// Copies a file for the server's user alone.
void GiveAway(const std::string& from, const std::string& to)
{
    fs::copy_file(from, to, fs::copy_options::overwrite_existing);
    fs::permissions(to, fs::perms::owner_read | fs::perms::owner_write);
    if (const passwd* user = ServerUser();
        user != nullptr && chown(to.c_str(), user->pw_uid, user->pw_gid) != 0)
        throw std::runtime_error("a file could not be given to the server");
}

/// A port of this computer that nobody listens on now.
int FreePort()
{
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    const bool had = bind(socket, reinterpret_cast<const sockaddr*>(&address), length) == 0
        && getsockname(socket, reinterpret_cast<sockaddr*>(&address), &length) == 0;
    close(socket);
    if (!had)
        throw std::runtime_error("no port could be had");
    return ntohs(address.sin_port);
}

} // namespace

PostgresServer::PostgresServer() : programs_(FindPrograms()), folder_(MakeFolder())
{
    // The order of texts must not depend on that of the database, so that is another one than the program's.
    const pid_t maker =
        Launch(folder_,
               {Program("initdb"), "-D", folder_ + "/data", "-U", "postgres", "-A", "trust", "-E", "UTF8",
                "--no-sync", "--locale=C.UTF-8", "--locale-provider=icu", "--icu-locale=pt-BR"});
    int status = 0;
    waitpid(maker, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        Fail(folder_, "initdb has failed");
    std::ofstream(folder_ + "/data/pg_hba.conf")
        << "local all com_senha scram-sha-256\nlocal all all trust\n";
    Start();
}

PostgresServer::~PostgresServer()
{
    Stop();
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

std::string PostgresServer::Program(const std::string& name) const { return programs_ + "/" + name; }

std::string PostgresServer::AddressOf(const std::string& database) const
{
    const std::string address = "postgresql://postgres@/" + database + "?host=" + folder_;
    return port_ == UsualPort ? address : address + "&port=" + std::to_string(port_);
}

void PostgresServer::Spawn()
{
    std::vector<std::string> words = {Program("postgres"),  "-D", folder_ + "/data", "-k", folder_, "-p",
                                      std::to_string(port_)};
    if (port_ == UsualPort)
        words.insert(words.end(), {"-h", ""});
    else
        words.insert(words.end(), {"-h", "localhost", "-c", isProtected_ ? "ssl=on" : "ssl=off"});
    for (const char* setting :
         {"max_connections=60", "shared_buffers=16MB", "max_wal_senders=0", "wal_level=minimal",
          "autovacuum=off", "log_min_messages=warning", "fsync=off", "full_page_writes=off"})
        words.insert(words.end(), {"-c", setting});
    process_ = Launch(folder_, words);
}

void PostgresServer::Start()
{
    Spawn();
    while (PQping(AddressOf("postgres").c_str()) != PQPING_OK) {
        if (waitpid(process_, nullptr, WNOHANG) == process_)
            Fail(folder_, "the server has ended");
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

void PostgresServer::Quit(int signal)
{
    if (process_ == 0)
        return;
    kill(process_, signal);
    waitpid(process_, nullptr, 0);
    process_ = 0;
}

void PostgresServer::Stop() { Quit(SIGQUIT); }

void PostgresServer::AnswerOnPort(const std::string& certificate, const std::string& key)
{
    Stop();
    GiveAway(certificate, folder_ + "/data/server.crt");
    GiveAway(key, folder_ + "/data/server.key");
    std::ofstream(folder_ + "/data/pg_hba.conf", std::ios::app) << "hostssl all all samehost scram-sha-256\n";
    isProtected_ = true;
    port_ = FreePort();
    Start();
}

void PostgresServer::AnswerUnprotected()
{
    Stop();
    std::ofstream(folder_ + "/data/pg_hba.conf", std::ios::app) << "host all all samehost scram-sha-256\n";
    isProtected_ = false;
    Start();
}

void PostgresServer::Kill()
{
    // Those that it leaves behind become this program's, which waits for their end.
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    kill(process_, SIGSTOP);
    const std::vector<pid_t> children = ChildrenOf(process_);
    for (const pid_t child : children)
        kill(child, SIGKILL);
    Quit(SIGKILL);
    for (const pid_t child : children)
        waitpid(child, nullptr, 0);
}

} // namespace kova::test

#ifdef __SANITIZE_ADDRESS__
// The library of database sessions loses a connection whose server stops between the end of its opening and
// the first statement, which the library itself sends. A session that this program forgets is still told of:
// by the session's own memory.
extern "C" const char* __lsan_default_suppressions() { return "leak:libsoci_postgresql.so"; }
#endif
