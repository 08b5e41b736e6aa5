#include <support/sefaz_simulator.hpp>

#include <support/files.hpp>

#include <unistd.h>

#include <algorithm>
#include <atomic>

namespace velk::test {

namespace {

std::filesystem::path simulator_program()
{
    return std::filesystem::path(VELK_BINARY_DIR) / "tools" / "sefaz-sim" / "velk-sefaz-sim";
}

// A folder of its own for each simulator of each test process.
std::filesystem::path fresh_record_folder()
{
    static std::atomic<int> count{0};
    return scratch_dir("sefaz-sim-" + std::to_string(getpid()) + "-" + std::to_string(++count));
}

std::vector<std::string> command_line(std::filesystem::path const& record, std::vector<std::string> const& options)
{
    std::vector<std::string> words = sefaz_simulator::pki().server_arguments();
    words.insert(words.end(), {"--schemas", schema_dir().string(), "--record", record.string()});
    words.insert(words.end(), options.begin(), options.end());
    return words;
}

std::vector<std::filesystem::path> recorded(std::filesystem::path const& folder, std::string const& extension)
{
    std::vector<std::filesystem::path> files;
    for (auto const& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == extension) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

sefaz_simulator::scratch_folder::~scratch_folder()
{
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

sefaz_simulator::sefaz_simulator(std::vector<std::string> const& options)
    : record_{fresh_record_folder()}, process_(simulator_program(), command_line(record_.path, options))
{
}

std::vector<core::byte_array> sefaz_simulator::recorded_requests() const
{
    std::vector<core::byte_array> bodies;
    for (auto const& file : recorded(record_.path, ".xml")) {
        bodies.push_back(read_bytes(file));
    }
    return bodies;
}

std::vector<std::string> sefaz_simulator::recorded_headers() const
{
    std::vector<std::string> headers;
    for (auto const& file : recorded(record_.path, ".headers")) {
        headers.push_back(read_text(file));
    }
    return headers;
}

tools::sefaz_sim::loopback_pki const& sefaz_simulator::pki()
{
    struct made_here {
        scratch_folder folder{scratch_dir("sefaz-sim-pki-" + std::to_string(getpid()))};
        tools::sefaz_sim::loopback_pki material{folder.path};
    };
    static made_here const made;
    return made.material;
}

}  // namespace velk::test
