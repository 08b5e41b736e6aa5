#pragma once

#include "option_table.hpp"

#include <velk/cryptography/pkcs12.hpp>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace velk::tools::tarn {

// The taxpayer's PKCS#12 certificate: --pfx names the file, and its password
// comes from --senha-arquivo or the variable TARN_PFX_SENHA, never from the
// command line.
class certificate_options {
public:
    static std::vector<option_row> option_rows();

    // The certificate of --pfx; nullopt without --pfx. Throws command_error
    // on an unreadable file, a missing or wrong password.
    static std::optional<cryptography::pkcs12> load(option_table const& options);
    // A bundle file with its password.
    static cryptography::pkcs12 read(std::filesystem::path const& file, std::string const& password);
    // The test certificate a simulator's folder holds (`tarn simulador --pasta`).
    static cryptography::pkcs12 of_simulator(std::filesystem::path const& folder);
};

}  // namespace velk::tools::tarn
