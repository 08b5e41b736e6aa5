#include "access_key.hpp"

#include "xml_reading.hpp"

#include <algorithm>

namespace velk::tools::sefaz_sim {

namespace {

bool all_digits(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string zero_filled(std::string text, std::size_t width)
{
    return text.size() >= width ? text : std::string(width - text.size(), '0') + text;
}

}  // namespace

char access_key::check_digit(std::string_view first_43)
{
    unsigned sum = 0;
    unsigned weight = 2;
    for (auto digit = first_43.rbegin(); digit != first_43.rend(); ++digit) {
        sum += static_cast<unsigned>(*digit - '0') * weight;
        weight = weight == 9 ? 2 : weight + 1;
    }
    unsigned const remainder = sum % 11;
    return static_cast<char>('0' + (remainder < 2 ? 0 : 11 - remainder));
}

bool access_key::is_valid(std::string_view key)
{
    return key.size() == 44 && all_digits(key) && check_digit(key.substr(0, 43)) == key.back();
}

std::string access_key::from_fields(xmlNode const* inf_nfe)
{
    using xml_reading::text_at;
    xmlNode const* const ide = xml_reading::child(inf_nfe, "ide");
    std::string const issued = text_at(ide, {"dhEmi"});
    std::string const year_month = issued.size() >= 7 ? issued.substr(2, 2) + issued.substr(5, 2) : std::string();
    std::string issuer = text_at(inf_nfe, {"emit", "CNPJ"});
    if (issuer.empty()) {
        issuer = text_at(inf_nfe, {"emit", "CPF"});
    }
    std::string const key = zero_filled(text_at(ide, {"cUF"}), 2) + year_month + zero_filled(issuer, 14) +
                            zero_filled(text_at(ide, {"mod"}), 2) + zero_filled(text_at(ide, {"serie"}), 3) +
                            zero_filled(text_at(ide, {"nNF"}), 9) + text_at(ide, {"tpEmis"}) +
                            zero_filled(text_at(ide, {"cNF"}), 8) + text_at(ide, {"cDV"});
    return all_digits(key) ? key : std::string();
}

}  // namespace velk::tools::sefaz_sim
