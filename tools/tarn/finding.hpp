#pragma once

#include "json_value.hpp"

#include <string>

namespace velk::tools::tarn {

// One result of tarn validar: what was checked, how it went, and the detail.
struct finding {
    enum class result { ok, failed, skipped };

    std::string check;
    result outcome = result::ok;
    std::string detail;

    json_value to_json() const;
    static finding from_json(json_value const& value);
    // "check: ok detail", "check: FALHOU detail", "check: não conferido detail".
    std::string to_line() const;
};

}  // namespace velk::tools::tarn
