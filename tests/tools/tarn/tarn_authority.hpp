#pragma once

#include <support/sefaz_simulator.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace velk::test {

// A simulator of this build acting as the authority of a test, and the
// options that send tarn to it: its address, its CA, and its client
// certificate with the password in a file.
class tarn_authority {
public:
    explicit tarn_authority(std::filesystem::path const& folder);

    // --endpoint, --ca, --pfx and --senha-arquivo.
    std::vector<std::string> const& options() const { return options_; }
    // The words of a subcommand followed by options().
    std::vector<std::string> command(std::vector<std::string> words) const;

private:
    sefaz_simulator simulator_;
    std::vector<std::string> options_;
};

// The folder of the data installed with the tarn of this build, and the
// bundled notes.
std::filesystem::path tarn_data();
std::filesystem::path tarn_note(std::string const& name);

}  // namespace velk::test
