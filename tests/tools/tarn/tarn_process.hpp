#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace velk::test {

// What a run of the tarn of this build gave.
struct tarn_run {
    int status = -1;     // exit status; -1 when it did not exit normally
    std::string output;  // standard output
    std::string errors;  // standard error

    // Output and errors, for failure messages.
    std::string both() const { return output + errors; }
};

// Runs build/tools/tarn/tarn with the arguments, its environment the test's
// plus `environment` (name, value), and waits for it.
tarn_run run_tarn(std::vector<std::string> const& arguments,
                  std::vector<std::pair<std::string, std::string>> const& environment = {});

// tarn running in the background for as long as this object lives, ended
// with SIGTERM; its output goes nowhere.
class tarn_in_background {
public:
    explicit tarn_in_background(std::vector<std::string> const& arguments);
    ~tarn_in_background();
    tarn_in_background(tarn_in_background const&) = delete;
    tarn_in_background& operator=(tarn_in_background const&) = delete;

    // The exit status once ended by SIGTERM; -1 when it did not exit normally.
    int stop();

private:
    int pid_ = -1;
};

// Whether `xmllint --noout --schema xsd file` accepts the file.
bool xmllint_accepts(std::filesystem::path const& xsd, std::filesystem::path const& file);

}  // namespace velk::test
