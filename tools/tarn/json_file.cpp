#include "json_file.hpp"

#include <google/protobuf/util/json_util.h>

#include <fstream>
#include <sstream>

namespace velk::tools::tarn {

namespace {

google::protobuf::Value const* member(google::protobuf::Struct const& object, std::string_view name)
{
    auto const found = object.fields().find(std::string(name));
    return found == object.fields().end() ? nullptr : &found->second;
}

}  // namespace

bool json_file::load(std::filesystem::path const& path, std::string& error)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        error = "arquivo de dados ausente: " + path.string();
        return false;
    }
    std::ostringstream text;
    text << in.rdbuf();
    auto const status = google::protobuf::util::JsonStringToMessage(text.str(), &root_);
    if (!status.ok()) {
        error = "arquivo de dados ilegível: " + path.string() + ": " + std::string(status.message());
        return false;
    }
    return true;
}

google::protobuf::Struct const* json_file::object_at(std::initializer_list<std::string_view> path) const
{
    google::protobuf::Struct const* at = &root_;
    for (std::string_view const name : path) {
        google::protobuf::Value const* const next = member(*at, name);
        if (next == nullptr || !next->has_struct_value()) {
            return nullptr;
        }
        at = &next->struct_value();
    }
    return at;
}

std::string json_file::text_at(std::initializer_list<std::string_view> path) const
{
    if (path.size() == 0) {
        return std::string();
    }
    google::protobuf::Struct const* at = &root_;
    std::size_t step = 0;
    for (std::string_view const name : path) {
        google::protobuf::Value const* const next = member(*at, name);
        if (next == nullptr) {
            return std::string();
        }
        if (++step == path.size()) {
            return next->kind_case() == google::protobuf::Value::kStringValue ? next->string_value() : std::string();
        }
        if (!next->has_struct_value()) {
            return std::string();
        }
        at = &next->struct_value();
    }
    return std::string();
}

}  // namespace velk::tools::tarn
