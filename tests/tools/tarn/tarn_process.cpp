#include "tarn_process.hpp"

#include <support/files.hpp>

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

extern char** environ;

namespace velk::test {

namespace {

std::filesystem::path tarn_program()
{
    return std::filesystem::path(VELK_BINARY_DIR) / "tools" / "tarn" / "tarn";
}

std::filesystem::path fresh_folder()
{
    static std::atomic<int> counter{0};
    return scratch_dir("tarn-run-" + std::to_string(getpid()) + "-" + std::to_string(counter++));
}

int wait_for(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            return -1;
        }
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Starts tarn with its output and errors going to the two files.
pid_t spawn(std::vector<std::string> const& arguments,
            std::vector<std::pair<std::string, std::string>> const& environment, std::string const& out,
            std::string const& err)
{
    std::vector<std::string> words = {tarn_program().string()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    // The environment is made before the fork: between fork and exec only
    // async-signal-safe calls.
    std::vector<std::string> variables;
    for (char** each = environ; *each != nullptr; ++each) {
        variables.emplace_back(*each);
    }
    for (auto const& [name, value] : environment) {
        variables.push_back(name + "=" + value);
    }
    std::vector<char*> envp;
    for (std::string& variable : variables) {
        envp.push_back(variable.data());
    }
    envp.push_back(nullptr);

    pid_t const child = fork();
    if (child == 0) {
        int const out_file = open(out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        int const err_file = open(err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        dup2(out_file, STDOUT_FILENO);
        dup2(err_file, STDERR_FILENO);
        execve(argv[0], argv.data(), envp.data());
        _exit(127);
    }
    return child;
}

}  // namespace

tarn_run run_tarn(std::vector<std::string> const& arguments,
                  std::vector<std::pair<std::string, std::string>> const& environment)
{
    std::filesystem::path const folder = fresh_folder();
    std::string const out = (folder / "stdout").string();
    std::string const err = (folder / "stderr").string();
    pid_t const child = spawn(arguments, environment, out, err);
    tarn_run result;
    result.status = child < 0 ? -1 : wait_for(child);
    result.output = read_text(out);
    result.errors = read_text(err);
    std::filesystem::remove_all(folder);
    return result;
}

tarn_in_background::tarn_in_background(std::vector<std::string> const& arguments)
    : pid_(spawn(arguments, {}, "/dev/null", "/dev/null"))
{
}

tarn_in_background::~tarn_in_background()
{
    stop();
}

int tarn_in_background::stop()
{
    if (pid_ <= 0) {
        return -1;
    }
    kill(pid_, SIGTERM);
    int const status = wait_for(pid_);
    pid_ = -1;
    return status;
}

bool xmllint_accepts(std::filesystem::path const& xsd, std::filesystem::path const& file)
{
    std::string const command =
        "xmllint --noout --nonet --schema '" + xsd.string() + "' '" + file.string() + "' >/dev/null 2>&1";
    int const status = std::system(command.c_str());
    return status != -1 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace velk::test
