#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace velk::demo {

// One file the demo wrote, as manifest.json lists it.
struct manifest_entry {
    std::string file;         // relative to the output folder
    std::string kind;         // message kind: "NFe", "consStatServ", "soap-envelope", ...
    std::string layout;       // layout version ("4.00"), empty where none applies
    std::string model;        // "55", "65" or empty
    std::string state;        // two-letter state, or empty
    bool is_signed = false;
    std::string description;  // one line for a human reader
};

// What the steps of the demo share: the output folder and the manifest.
class demo_context {
public:
    explicit demo_context(std::filesystem::path out) : out_(std::move(out)) {}

    std::filesystem::path const& out() const { return out_; }

    // Writes the bytes into out()/entry.file and lists the file.
    void write(manifest_entry const& entry, std::string const& contents);

    // The test CSC and token used for QR codes, recorded in the manifest.
    void set_qrcode_secret(std::string const& id_token, std::string const& csc);

    // Writes out()/manifest.json.
    void write_manifest() const;

    // Prints one line of progress.
    static void say(std::string const& text);

private:
    std::filesystem::path out_;
    std::vector<manifest_entry> entries_;
    std::string id_token_;
    std::string csc_;
};

// A step failed: prints the report and tells main to exit with failure.
struct demo_failure {
    std::string what;
};

}  // namespace velk::demo
