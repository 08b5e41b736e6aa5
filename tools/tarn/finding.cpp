#include "finding.hpp"

#include <array>

namespace velk::tools::tarn {

namespace {

// The words of each result, in JSON and in text.
struct result_words {
    char const* json;
    char const* text;
};

constexpr std::array<result_words, 3> words = {{
    {"ok", "ok"},
    {"falhou", "FALHOU"},
    {"nao_conferido", "não conferido"},
}};

result_words const& words_of(finding::result outcome)
{
    return words[static_cast<std::size_t>(outcome)];
}

}  // namespace

json_value finding::to_json() const
{
    return json_value::object()
        .set("verificacao", json_value::text(check))
        .set("resultado", json_value::text(words_of(outcome).json))
        .set("detalhe", json_value::text(detail));
}

finding finding::from_json(json_value const& value)
{
    auto const text = [&](char const* key) {
        json_value const* const found = value.find(key);
        return found != nullptr ? found->scalar() : std::string();
    };
    finding made{text("verificacao"), result::skipped, text("detalhe")};
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (text("resultado") == words[i].json) {
            made.outcome = static_cast<result>(i);
        }
    }
    return made;
}

std::string finding::to_line() const
{
    std::string line = check + ": " + words_of(outcome).text;
    if (!detail.empty()) {
        line += " - " + detail;
    }
    return line;
}

}  // namespace velk::tools::tarn
