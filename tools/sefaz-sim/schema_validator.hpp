#pragma once

#include <libxml/tree.h>
#include <libxml/xmlschemas.h>

#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace velk::tools::sefaz_sim {

// How a message fared against its schema.
struct validation {
    enum class outcome {
        not_checked,      // no schema folder given
        valid,
        invalid,          // `problems` tells why
        unknown_version,  // no schema of that name and version in the folder
    };
    outcome result = outcome::not_checked;
    std::vector<std::string> problems;
};

// Validates messages against the official schemas of a folder, found by the
// message's root and version ("consStatServ" 4.00: consStatServ_v4.00.xsd).
// Schemas are parsed once, their includes read from the folder only, never
// from the network, and shared by the server's threads.
class schema_validator {
public:
    // An empty folder validates nothing.
    explicit schema_validator(std::filesystem::path folder);
    ~schema_validator();
    schema_validator(schema_validator const&) = delete;
    schema_validator& operator=(schema_validator const&) = delete;

    validation validate(xmlNode* message, std::string const& root, std::string const& versao);

private:
    struct parsed_schema;

    parsed_schema* load(std::filesystem::path const& file, std::vector<std::string>& problems);

    std::filesystem::path folder_;
    std::mutex mutex_;
    std::map<std::filesystem::path, std::unique_ptr<parsed_schema>> schemas_;
};

}  // namespace velk::tools::sefaz_sim
