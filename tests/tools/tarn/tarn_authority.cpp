#include "tarn_authority.hpp"

#include <support/files.hpp>

namespace velk::test {

tarn_authority::tarn_authority(std::filesystem::path const& folder)
{
    auto const& pki = sefaz_simulator::pki();
    std::string const pfx = (folder / "cliente.pfx").string();
    std::string const password = (folder / "senha").string();
    write_text(pfx, pki.client_pkcs12().to_string());
    write_text(password, pki.password());
    options_ = {"--endpoint", simulator_.url("/"), "--ca",  pki.ca_file().string(), "--pfx",
                pfx,          "--senha-arquivo",   password};
}

std::vector<std::string> tarn_authority::command(std::vector<std::string> words) const
{
    words.insert(words.end(), options_.begin(), options_.end());
    return words;
}

std::filesystem::path tarn_data()
{
    return std::filesystem::path(VELK_BINARY_DIR) / "tools" / "tarn" / "share" / "tarn";
}

std::filesystem::path tarn_note(std::string const& name)
{
    return tarn_data() / "notas" / name;
}

}  // namespace velk::test
