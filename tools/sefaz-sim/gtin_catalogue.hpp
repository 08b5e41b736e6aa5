#pragma once

#include <string_view>
#include <vector>

namespace velk::tools::sefaz_sim {

// A product of the central GTIN catalogue, as its query answers it.
struct gtin_item {
    std::string_view gtin;         // 8, 12, 13 or 14 digits; tpGTIN is their count
    std::string_view description;  // xProd
    std::string_view ncm;          // 8 digits
    std::vector<std::string_view> cest;  // up to three, 7 digits each
};

// The small catalogue the simulator answers from: the products with a GTIN of
// the demo's and the tests' notes, and one of each GTIN length.
class gtin_catalogue {
public:
    static std::vector<gtin_item> const& items();
    // Null for a GTIN not in the catalogue.
    static gtin_item const* find(std::string_view gtin);
};

}  // namespace velk::tools::sefaz_sim
