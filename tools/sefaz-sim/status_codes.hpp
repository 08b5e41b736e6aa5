#pragma once

#include <string>

namespace velk::tools::sefaz_sim {

// The authority's status codes (cStat) and their texts (xMotivo), in the form
// the national manual gives them.
class status_codes {
public:
    // The text of a code; "Rejeição: Erro não catalogado" for one the table
    // does not hold.
    static std::string const& reason(int code);
};

}  // namespace velk::tools::sefaz_sim
