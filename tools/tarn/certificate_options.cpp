#include "certificate_options.hpp"

#include "command_error.hpp"
#include "files.hpp"
#include "secret_source.hpp"
#include "simulator_session.hpp"

#include <fstream>
#include <iterator>

namespace velk::tools::tarn {

namespace {

secret_source const password_source("senha-arquivo", "TARN_PFX_SENHA");

}  // namespace

std::vector<option_row> certificate_options::option_rows()
{
    return {
        {"pfx", "ARQUIVO", "certificado A1 do contribuinte (PKCS#12, .pfx)"},
        {"senha-arquivo", "ARQUIVO", "arquivo com a senha do certificado (ou a variável TARN_PFX_SENHA)"},
    };
}

std::optional<cryptography::pkcs12> certificate_options::load(option_table const& options)
{
    std::optional<std::string> const file = options.value("pfx");
    if (!file) {
        return std::nullopt;
    }
    std::string error;
    std::optional<std::string> const password = password_source.read(options, error);
    if (!password) {
        throw command_error::usage("certificado", error.empty() ? "a senha do certificado vem de --senha-arquivo "
                                                                  "ou da variável TARN_PFX_SENHA"
                                                                : error);
    }
    return read(*file, *password);
}

cryptography::pkcs12 certificate_options::read(std::filesystem::path const& file, std::string const& password)
{
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        throw command_error::usage("certificado", "não foi possível ler " + file.string());
    }
    std::string const bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    core::result::stack stack;
    cryptography::pkcs12 certificate = cryptography::pkcs12::from_byte_array(core::byte_array(bytes), password, stack);
    throw_if_failed(stack, "certificado");
    return certificate;
}

cryptography::pkcs12 certificate_options::of_simulator(std::filesystem::path const& folder)
{
    return read(folder / simulator_session::pfx_file, read_file(folder / simulator_session::password_file));
}

}  // namespace velk::tools::tarn
