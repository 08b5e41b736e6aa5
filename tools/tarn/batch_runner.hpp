#pragma once

#include "json_value.hpp"
#include "note_issuer.hpp"
#include "resource_usage.hpp"

#include <filesystem>
#include <vector>

namespace velk::tools::tarn {

// Many notes through one issuer, `jobs` at a time, with a progress bar on a
// terminal; the outcomes in the order of the files, and a summary with the
// throughput and what the process held before, once warm and at the end.
class batch_runner {
public:
    batch_runner(note_issuer const& issuer, unsigned jobs) : issuer_(issuer), jobs_(jobs == 0 ? 1 : jobs) {}

    struct outcome {
        std::vector<issued_note> notes;
        exit_status status = exit_status::ok;  // the worst of the notes'
        json_value summary;
    };

    outcome run(std::vector<std::filesystem::path> const& files) const;

private:
    note_issuer const& issuer_;
    unsigned jobs_;
};

}  // namespace velk::tools::tarn
