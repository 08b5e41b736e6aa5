#include "simulator_process.hpp"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <stdexcept>

namespace velk::tools::sefaz_sim {

namespace {

constexpr int start_timeout_ms = 30000;

// Reads up to the first line feed; empty when the pipe ends first or nothing
// comes in time.
std::string read_first_line(int descriptor)
{
    std::string line;
    char c = 0;
    while (line.size() < 32) {
        pollfd wait_for{descriptor, POLLIN, 0};
        if (poll(&wait_for, 1, start_timeout_ms) <= 0) {
            return std::string();
        }
        ssize_t const got = read(descriptor, &c, 1);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0 || c == '\n') {
            break;
        }
        line += c;
    }
    return line;
}

}  // namespace

simulator_process::simulator_process(std::filesystem::path const& program, std::vector<std::string> const& arguments)
{
    std::vector<std::string> words = {program.string()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);

    int channel[2];
    if (pipe2(channel, O_CLOEXEC) != 0) {
        throw std::runtime_error("simulator: no pipe");
    }
    pid_t const parent = getpid();
    pid_ = fork();
    if (pid_ < 0) {
        close(channel[0]);
        close(channel[1]);
        throw std::runtime_error("simulator: fork failed");
    }
    if (pid_ == 0) {
        // Only async-signal-safe calls between fork and exec.
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (getppid() != parent) {
            _exit(127);
        }
        dup2(channel[1], STDOUT_FILENO);
        execv(argv[0], argv.data());
        _exit(127);
    }
    close(channel[1]);
    std::string const line = read_first_line(channel[0]);
    close(channel[0]);
    int port = 0;
    auto const [end, problem] = std::from_chars(line.data(), line.data() + line.size(), port);
    if (line.empty() || problem != std::errc() || end != line.data() + line.size() || port <= 0) {
        kill(pid_, SIGTERM);
        int status = 0;
        waitpid(pid_, &status, 0);
        throw std::runtime_error("simulator did not start: " + program.string() +
                                 (line.empty() ? std::string() : " (printed \"" + line + "\")"));
    }
    port_ = port;
}

simulator_process::~simulator_process()
{
    if (pid_ > 0) {
        kill(pid_, SIGTERM);
        int status = 0;
        while (waitpid(pid_, &status, 0) < 0 && errno == EINTR) {
        }
    }
}

std::string simulator_process::url(std::string const& path) const
{
    return "https://127.0.0.1:" + std::to_string(port_) + path;
}

std::filesystem::path simulator_process::beside_this_program()
{
    std::filesystem::path const self = std::filesystem::read_symlink("/proc/self/exe");
    return self.parent_path().parent_path() / "sefaz-sim" / "velk-sefaz-sim";
}

}  // namespace velk::tools::sefaz_sim
