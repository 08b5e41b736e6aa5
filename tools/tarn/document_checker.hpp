#pragma once

#include "finding.hpp"
#include "message_kind.hpp"
#include "subcommand.hpp"

#include <sefaz-sim/schema_validator.hpp>

#include <libxml/tree.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace velk::tools::tarn {

// The checks of tarn validar on one file, each apart from the library's own
// code where the library made the file: the official schema (libxml2, the
// schemas installed with the tool), every enveloped signature (libxml2's
// canonical form and OpenSSL), the access key's check digit and its fields,
// and the QR code of an NFC-e when the CSC is given.
class document_checker {
public:
    document_checker(std::filesystem::path schemas, std::optional<std::string> csc);

    // The report of the file: {"arquivo", "tipo", "achados": [...]}; status
    // 0 when every check passed (or could not be made), 1 when one failed.
    // Throws command_error for a file that is no XML or no known message.
    command_outcome check(std::filesystem::path const& file);

private:
    void check_schema(xmlNode* root, message_kind const& kind, std::vector<finding>& found);
    static void check_signatures(xmlNode const* root, message_kind const& kind, std::vector<finding>& found);
    static void check_key(xmlNode const* root, message_kind const& kind, std::vector<finding>& found);

    bool has_schemas_;
    sefaz_sim::schema_validator validator_;
    std::optional<std::string> csc_;
};

}  // namespace velk::tools::tarn
