#pragma once

#include <filesystem>

namespace velk::tools::tarn {

// Where tarn finds what is installed with it, relative to its own
// executable, so that the build tree and an installation work alike:
//
//   installed   <prefix>/bin/tarn, <prefix>/share/tarn/, <prefix>/libexec/tarn/velk-sefaz-sim
//   build tree  tools/tarn/tarn, tools/tarn/share/tarn/, tools/sefaz-sim/velk-sefaz-sim
class tool_paths {
public:
    // The folder of the running executable.
    static std::filesystem::path executable_folder();
    // The data folder: sefaz-webservices.json, nfce-qrcode.json, schemas/.
    // Empty when neither place has one.
    static std::filesystem::path data_folder();
    // The SEFAZ simulator; empty when neither place has one.
    static std::filesystem::path simulator();
};

}  // namespace velk::tools::tarn
