#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velk::test {

// The findings of `tarn validar` on one file, read from its text: the result
// of each check ("ok", "FALHOU", "não conferido"), the first line of a check
// that has several, and the detail of that line.
struct validar_findings {
    int status = -1;
    std::string type;
    std::map<std::string, std::pair<std::string, std::string>> checks;
    std::string text;

    static validar_findings of(std::filesystem::path const& file,
                               std::vector<std::pair<std::string, std::string>> const& environment = {});

    // "ok", "FALHOU", "não conferido"; empty when the check was not made.
    std::string result(std::string const& check) const;
    std::string detail(std::string const& check) const;
};

// Asserts that tarn validar agrees with `xmllint --schema` (on the schema it
// names) and with `xmlsec1 --verify` (on the first signature) about the file.
void expect_agreement(std::filesystem::path const& file);

}  // namespace velk::test
