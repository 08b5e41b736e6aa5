#include "simulator_session.hpp"

#include <sys/stat.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace velk::tools::tarn {

namespace {

void write_private(std::filesystem::path const& path, void const* bytes, std::size_t size)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(static_cast<char const*>(bytes), static_cast<std::streamsize>(size));
    if (!out) {
        throw std::runtime_error("cannot write " + path.string());
    }
    out.close();
    chmod(path.c_str(), S_IRUSR | S_IWUSR);
}

}  // namespace

simulator_session::simulator_session(std::filesystem::path const& simulator, std::filesystem::path folder, bool keep,
                                     std::filesystem::path const& schemas)
    : folder_(std::move(folder)), keep_(keep)
{
    if (simulator.empty()) {
        throw std::runtime_error("o simulador não foi instalado com o tarn");
    }
    try {
        pki_ = std::make_unique<sefaz_sim::loopback_pki>(folder_);
        std::vector<std::string> arguments = pki_->server_arguments();
        if (!schemas.empty()) {
            arguments.insert(arguments.end(), {"--schemas", schemas.string()});
        }
        process_ = std::make_unique<sefaz_sim::simulator_process>(simulator, arguments);
    } catch (...) {
        if (!keep_) {
            std::error_code ignored;
            std::filesystem::remove_all(folder_, ignored);
        }
        throw;
    }
}

simulator_session::~simulator_session()
{
    process_.reset();
    if (!keep_) {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
}

std::string simulator_session::endpoint() const
{
    return process_->url("/");
}

void simulator_session::publish() const
{
    core::byte_array const& pfx = pki_->client_pkcs12();
    write_private(folder_ / pfx_file, pfx.data(), pfx.size());
    write_private(folder_ / password_file, pki_->password().data(), pki_->password().size());
    std::string const address = endpoint() + "\n";
    write_private(folder_ / endpoint_file, address.data(), address.size());
}

std::filesystem::path simulator_session::temporary_folder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "tarn-sim-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("não foi possível criar uma pasta temporária");
    }
    return pattern;
}

}  // namespace velk::tools::tarn
