#pragma once

#include <libxml/tree.h>

#include <string>
#include <string_view>

namespace velk::tools::sefaz_sim {

// The 44 digits of an access key: cUF, year and month of issue, the issuer's
// CNPJ (or CPF), model, series, number, emission type, the random code and a
// check digit.
class access_key {
public:
    // Modulo 11 of the first 43 digits, weights 2 to 9 from the right;
    // remainders 0 and 1 give 0.
    static char check_digit(std::string_view first_43);
    // 44 digits whose last one is the check digit of the others.
    static bool is_valid(std::string_view key);
    // The key that the fields of a document's infNFe make (ide and emit),
    // check digit of ide/cDV included. A field wider than its place makes a
    // key of another length, which no Id matches.
    static std::string from_fields(xmlNode const* inf_nfe);
};

}  // namespace velk::tools::sefaz_sim
