#pragma once

#include <google/protobuf/struct.pb.h>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

namespace velk::tools::tarn {

// A JSON data file of the tool read with protobuf's own JSON parser into a
// google.protobuf.Struct, and walked by member names.
class json_file {
public:
    // False with the reason when the file is missing or is no JSON object.
    bool load(std::filesystem::path const& path, std::string& error);

    // The string at the end of a path of member names; empty when a step is
    // missing or the value is no string.
    std::string text_at(std::initializer_list<std::string_view> path) const;
    // The object at the end of a path; null when there is none.
    google::protobuf::Struct const* object_at(std::initializer_list<std::string_view> path) const;

private:
    google::protobuf::Struct root_;
};

}  // namespace velk::tools::tarn
