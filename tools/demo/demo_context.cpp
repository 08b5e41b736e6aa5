#include "demo_context.hpp"

#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace velk::demo {

namespace {

std::string json_string(std::string const& text)
{
    std::string out = "\"";
    for (unsigned char const c : text) {
        switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        default:
            if (c < 0x20) {
                char escaped[8];
                std::snprintf(escaped, sizeof escaped, "\\u%04x", c);
                out += escaped;
            } else {
                out += static_cast<char>(c);
            }
        }
    }
    return out + "\"";
}

}  // namespace

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
        json += "    {\"file\": " + json_string(entry.file) + ", \"kind\": " + json_string(entry.kind) +
                ", \"layout\": " + json_string(entry.layout) + ", \"model\": " + json_string(entry.model) +
                ", \"state\": " + json_string(entry.state) + ", \"signed\": " + (entry.is_signed ? "true" : "false") +
                ", \"description\": " + json_string(entry.description) + "}";
    }
    json += "\n  ]";
    if (!id_token_.empty() || !csc_.empty()) {
        json += ",\n  \"qrcode\": {\"id_token\": " + json_string(id_token_) + ", \"csc\": " + json_string(csc_) +
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
