#include "json_value.hpp"

#include <cstdio>

namespace velk::tools::tarn {

json_value json_value::object()
{
    json_value made;
    made.kind_ = kind::object;
    return made;
}

json_value json_value::array()
{
    json_value made;
    made.kind_ = kind::array;
    return made;
}

json_value json_value::text(std::string value)
{
    json_value made;
    made.kind_ = kind::string;
    made.scalar_ = std::move(value);
    return made;
}

json_value json_value::number(std::int64_t value)
{
    return decimal(std::to_string(value));
}

json_value json_value::number(std::uint64_t value)
{
    return decimal(std::to_string(value));
}

json_value json_value::decimal(std::string value)
{
    json_value made;
    made.kind_ = kind::number;
    made.scalar_ = std::move(value);
    return made;
}

json_value json_value::boolean(bool value)
{
    json_value made;
    made.kind_ = kind::boolean;
    made.scalar_ = value ? "true" : "false";
    return made;
}

json_value& json_value::set(std::string const& key, json_value value)
{
    for (auto& member : members_) {
        if (member.first == key) {
            member.second = std::move(value);
            return *this;
        }
    }
    members_.emplace_back(key, std::move(value));
    return *this;
}

json_value& json_value::push(json_value value)
{
    items_.push_back(std::move(value));
    return *this;
}

json_value const* json_value::find(std::string const& key) const
{
    for (auto const& member : members_) {
        if (member.first == key) {
            return &member.second;
        }
    }
    return nullptr;
}

std::string json_value::to_json() const
{
    std::string out;
    write(out, 0);
    return out;
}

void json_value::write(std::string& out, int depth) const
{
    std::string const indent(static_cast<std::size_t>(depth + 1) * 2, ' ');
    std::string const closing(static_cast<std::size_t>(depth) * 2, ' ');
    switch (kind_) {
    case kind::null: out += "null"; return;
    case kind::boolean:
    case kind::number: out += scalar_; return;
    case kind::string: out += json_quoted(scalar_); return;
    case kind::array:
        if (items_.empty()) {
            out += "[]";
            return;
        }
        out += "[\n";
        for (std::size_t i = 0; i < items_.size(); ++i) {
            out += indent;
            items_[i].write(out, depth + 1);
            out += i + 1 < items_.size() ? ",\n" : "\n";
        }
        out += closing + "]";
        return;
    case kind::object:
        if (members_.empty()) {
            out += "{}";
            return;
        }
        out += "{\n";
        for (std::size_t i = 0; i < members_.size(); ++i) {
            out += indent + json_quoted(members_[i].first) + ": ";
            members_[i].second.write(out, depth + 1);
            out += i + 1 < members_.size() ? ",\n" : "\n";
        }
        out += closing + "}";
        return;
    }
}

std::string json_quoted(std::string const& text)
{
    std::string out = "\"";
    for (unsigned char const c : text) {
        switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        default:
            if (c < 0x20) {
                char escaped[8];
                std::snprintf(escaped, sizeof escaped, "\\u%04x", c);
                out += escaped;
            } else {
                out += static_cast<char>(c);
            }
        }
    }
    return out + "\"";
}

}  // namespace velk::tools::tarn
