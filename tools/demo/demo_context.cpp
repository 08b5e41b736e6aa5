#include "demo_context.hpp"

#include <tarn/json_value.hpp>

#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace velk::demo {

void demo_context::write(manifest_entry const& entry, std::string const& contents)
{
    auto const path = out_ / entry.file;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << contents;
    if (!file) {
        throw demo_failure{"cannot write " + path.string()};
    }
    entries_.push_back(entry);
    say("wrote " + path.string());
}

void demo_context::set_qrcode_secret(std::string const& id_token, std::string const& csc)
{
    id_token_ = id_token;
    csc_ = csc;
}

void demo_context::write_manifest() const
{
    std::string json = "{\n  \"files\": [";
    bool first = true;
    for (auto const& entry : entries_) {
        json += first ? "\n" : ",\n";
        first = false;
        json += "    {\"file\": " + tools::tarn::json_quoted(entry.file) + ", \"kind\": " + tools::tarn::json_quoted(entry.kind) +
                ", \"layout\": " + tools::tarn::json_quoted(entry.layout) + ", \"model\": " + tools::tarn::json_quoted(entry.model) +
                ", \"state\": " + tools::tarn::json_quoted(entry.state) + ", \"signed\": " + (entry.is_signed ? "true" : "false") +
                ", \"description\": " + tools::tarn::json_quoted(entry.description) + "}";
    }
    json += "\n  ]";
    if (!id_token_.empty() || !csc_.empty()) {
        json += ",\n  \"qrcode\": {\"id_token\": " + tools::tarn::json_quoted(id_token_) + ", \"csc\": " + tools::tarn::json_quoted(csc_) +
                ", \"note\": \"test values for homologation only\"}";
    }
    json += "\n}\n";
    std::ofstream file(out_ / "manifest.json", std::ios::binary);
    file << json;
    say("wrote " + (out_ / "manifest.json").string());
}

void demo_context::say(std::string const& text)
{
    std::printf("%s\n", text.c_str());
    std::fflush(stdout);
}

}  // namespace velk::demo
