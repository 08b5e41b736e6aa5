#pragma once

#include "finding.hpp"

#include <libxml/tree.h>

#include <optional>
#include <string>

namespace velk::tools::tarn {

// Whether the QR code of an NFC-e is the one its CSC makes: the page,
// version and token are read from the QR code itself, the QR code is made
// again by the library from the document without it, and the two texts
// must be equal. Without the CSC the hash cannot be told, and the finding
// says so.
class qrcode_check {
public:
    // `nfe`: the NFe element of an NFC-e.
    static finding run(xmlNode const* nfe, std::optional<std::string> const& csc);
};

}  // namespace velk::tools::tarn
