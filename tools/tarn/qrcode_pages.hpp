#pragma once

#include "json_file.hpp"

#include <velk/erp/estado.hpp>
#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>

#include <filesystem>
#include <string>

namespace velk::tools::tarn {

// The consultation pages of the NFC-e QR code by state and environment
// (nfce-qrcode.json, installed with the tool); PR has one per layout, and MA
// none in homologation. The QR string is appended to the page as it stands.
class qrcode_pages {
public:
    bool load(std::filesystem::path const& file, std::string& error);

    // Empty with the reason when the state has no page there.
    std::string page(erp::estado uf, erp::tarn::ambiente ambiente, erp::tarn::nfe::versao layout,
                     std::string& error) const;

private:
    json_file table_;
};

}  // namespace velk::tools::tarn
