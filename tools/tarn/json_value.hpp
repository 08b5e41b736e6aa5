#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace velk::tools::tarn {

// What a subcommand reports, as one value that prints either as JSON (for
// scripts, --json) or as lines of text. Objects keep their members in the
// order they were set, so that both forms read in the order of the work.
class json_value {
public:
    enum class kind { null, boolean, number, string, array, object };

    json_value() = default;
    static json_value object();
    static json_value array();
    static json_value text(std::string value);
    static json_value number(std::int64_t value);
    static json_value number(std::uint64_t value);
    static json_value number(int value) { return number(static_cast<std::int64_t>(value)); }
    static json_value number(unsigned value) { return number(static_cast<std::uint64_t>(value)); }
    // A number already written, as "12.5".
    static json_value decimal(std::string value);
    static json_value boolean(bool value);

    // Adds or replaces a member of an object; returns this object.
    json_value& set(std::string const& key, json_value value);
    // Appends to an array; returns this array.
    json_value& push(json_value value);

    kind get_kind() const { return kind_; }
    // The text of a scalar: "true", "12", the string itself.
    std::string const& scalar() const { return scalar_; }
    std::vector<std::pair<std::string, json_value>> const& members() const { return members_; }
    std::vector<json_value> const& items() const { return items_; }
    // Null when the object has no such member.
    json_value const* find(std::string const& key) const;

    // The JSON text, indented by two spaces.
    std::string to_json() const;

private:
    void write(std::string& out, int depth) const;

    kind kind_ = kind::null;
    std::string scalar_;
    std::vector<std::pair<std::string, json_value>> members_;
    std::vector<json_value> items_;
};

// A JSON string literal of UTF-8 text, quotes included.
std::string json_quoted(std::string const& text);

}  // namespace velk::tools::tarn
