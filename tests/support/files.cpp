#include <support/files.hpp>

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace velk::test {

std::filesystem::path shared_dir()
{
    std::filesystem::path const path(VELK_SHARED_DIR);
    if (!std::filesystem::is_directory(path)) {
        throw std::runtime_error("test data folder not found: " + path.string() +
                                 " (configure with -DVELK_SHARED_DIR=...)");
    }
    return path;
}

std::filesystem::path schema_dir()
{
    return shared_dir() / "schemas" / "nfe";
}

std::filesystem::path sample(std::string const& relative)
{
    return shared_dir() / "samples" / relative;
}

std::string read_text(std::filesystem::path const& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        throw std::runtime_error("cannot read " + path.string());
    }
    std::ostringstream contents;
    contents << in.rdbuf();
    return contents.str();
}

core::byte_array read_bytes(std::filesystem::path const& path)
{
    return core::byte_array(read_text(path));
}

void write_text(std::filesystem::path const& path, std::string const& contents)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream out(path, std::ios::binary);
    out << contents;
    if (!out) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

std::filesystem::path scratch_dir(std::string const& name)
{
    auto const path = std::filesystem::path(VELK_BINARY_DIR) / "test-scratch" / name;
    std::filesystem::remove_all(path);
    std::filesystem::create_directories(path);
    return path;
}

}  // namespace velk::test
