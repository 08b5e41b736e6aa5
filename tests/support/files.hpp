#pragma once

#include <velk/core/byte_array.hpp>

#include <filesystem>
#include <string>

namespace velk::test {

// The folder of test data beside the repository: official schemas, samples and
// reference tables. Tests that need it fail with a clear message when absent.
std::filesystem::path shared_dir();
std::filesystem::path schema_dir();   // shared_dir()/schemas/nfe
std::filesystem::path sample(std::string const& relative);  // shared_dir()/samples/<relative>

std::string read_text(std::filesystem::path const& path);
core::byte_array read_bytes(std::filesystem::path const& path);
void write_text(std::filesystem::path const& path, std::string const& contents);

// A fresh empty folder under the build tree for one test's files.
std::filesystem::path scratch_dir(std::string const& name);

}  // namespace velk::test
