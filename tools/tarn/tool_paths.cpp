#include "tool_paths.hpp"

#include <initializer_list>

namespace velk::tools::tarn {

namespace {

std::filesystem::path first_existing(std::initializer_list<std::filesystem::path> candidates)
{
    for (auto const& candidate : candidates) {
        std::error_code ignored;
        if (std::filesystem::exists(candidate, ignored)) {
            return candidate.lexically_normal();
        }
    }
    return {};
}

}  // namespace

std::filesystem::path tool_paths::executable_folder()
{
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
}

std::filesystem::path tool_paths::data_folder()
{
    std::filesystem::path const here = executable_folder();
    return first_existing({here / ".." / "share" / "tarn", here / "share" / "tarn"});
}

std::filesystem::path tool_paths::simulator()
{
    std::filesystem::path const here = executable_folder();
    return first_existing(
        {here / ".." / "libexec" / "tarn" / "velk-sefaz-sim", here / ".." / "sefaz-sim" / "velk-sefaz-sim"});
}

}  // namespace velk::tools::tarn
