#include "option_table.hpp"

#include <algorithm>

namespace velk::tools::tarn {

std::vector<option_spec> joined(std::initializer_list<std::vector<option_spec>> groups)
{
    std::vector<option_spec> all;
    for (std::vector<option_spec> const& group : groups) {
        all.insert(all.end(), group.begin(), group.end());
    }
    return all;
}

option_table::option_table(std::vector<option_spec> specs) : specs_(std::move(specs)) {}

option_spec const* option_table::find(std::string_view name) const
{
    auto const found =
        std::find_if(specs_.begin(), specs_.end(), [&](option_spec const& spec) { return spec.name == name; });
    return found == specs_.end() ? nullptr : &*found;
}

bool option_table::parse(std::vector<std::string> const& words, std::string& error)
{
    bool options_ended = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        std::string const& word = words[i];
        if (options_ended || word.size() < 3 || word.compare(0, 2, "--") != 0) {
            if (word == "--") {
                options_ended = true;
            } else {
                positionals_.push_back(word);
            }
            continue;
        }
        std::size_t const equals = word.find('=');
        std::string const name = word.substr(2, equals == std::string::npos ? std::string::npos : equals - 2);
        option_spec const* const spec = find(name);
        if (spec == nullptr) {
            error = "opção desconhecida: --" + name;
            return false;
        }
        if (spec->value.empty()) {
            if (equals != std::string::npos) {
                error = "a opção --" + name + " não leva valor";
                return false;
            }
            given_[name].emplace_back();
        } else if (equals != std::string::npos) {
            given_[name].push_back(word.substr(equals + 1));
        } else if (i + 1 < words.size()) {
            given_[name].push_back(words[++i]);
        } else {
            error = "falta o valor de --" + name + " " + std::string(spec->value);
            return false;
        }
    }
    return true;
}

bool option_table::has(std::string_view name) const
{
    return given_.find(name) != given_.end();
}

std::optional<std::string> option_table::value(std::string_view name) const
{
    auto const found = given_.find(name);
    if (found == given_.end() || found->second.empty()) {
        return std::nullopt;
    }
    return found->second.back();
}

std::string option_table::help() const
{
    std::vector<std::string> heads;
    std::size_t width = 0;
    for (option_spec const& spec : specs_) {
        std::string head = "  --" + std::string(spec.name);
        if (!spec.value.empty()) {
            head += " " + std::string(spec.value);
        }
        width = std::max(width, head.size());
        heads.push_back(std::move(head));
    }
    std::string text;
    for (std::size_t i = 0; i < specs_.size(); ++i) {
        text += heads[i] + std::string(width + 2 - heads[i].size(), ' ') + std::string(specs_[i].help) + "\n";
    }
    return text;
}

}  // namespace velk::tools::tarn
