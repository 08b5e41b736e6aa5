#include "option_table.hpp"

#include <algorithm>

namespace velk::tools::tarn {

std::vector<option_row> joined(std::initializer_list<std::vector<option_row>> groups)
{
    std::vector<option_row> all;
    for (std::vector<option_row> const& group : groups) {
        all.insert(all.end(), group.begin(), group.end());
    }
    return all;
}

option_table::option_table(std::vector<option_row> rows) : rows_(std::move(rows)) {}

option_row const* option_table::find(std::string_view name) const
{
    auto const found =
        std::find_if(rows_.begin(), rows_.end(), [&](option_row const& row) { return row.name == name; });
    return found == rows_.end() ? nullptr : &*found;
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
        option_row const* const row = find(name);
        if (row == nullptr) {
            error = "opção desconhecida: --" + name;
            return false;
        }
        if (row->value.empty()) {
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
            error = "falta o valor de --" + name + " " + std::string(row->value);
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
    for (option_row const& row : rows_) {
        std::string head = "  --" + std::string(row.name);
        if (!row.value.empty()) {
            head += " " + std::string(row.value);
        }
        width = std::max(width, head.size());
        heads.push_back(std::move(head));
    }
    std::string text;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        text += heads[i] + std::string(width + 2 - heads[i].size(), ' ') + std::string(rows_[i].help) + "\n";
    }
    return text;
}

}  // namespace velk::tools::tarn
