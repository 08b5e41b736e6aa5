#pragma once

#include "address_table.hpp"
#include "qrcode_pages.hpp"

#include <filesystem>
#include <optional>

namespace velk::tools::tarn {

// The data installed with the tool, read when first needed: the address
// table, the QR code pages and the official schemas.
class tool_data {
public:
    // The folder of tool_paths::data_folder().
    tool_data();
    explicit tool_data(std::filesystem::path folder) : folder_(std::move(folder)) {}

    // Throw command_error when the file is missing or unreadable.
    address_table const& addresses();
    qrcode_pages const& pages();
    // The folder of the official schemas; empty when not installed.
    std::filesystem::path schemas() const;

private:
    std::filesystem::path folder_;
    std::optional<address_table> addresses_;
    std::optional<qrcode_pages> pages_;
};

}  // namespace velk::tools::tarn
