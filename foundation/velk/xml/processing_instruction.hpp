#pragma once

#include <string>

namespace velk::xml {
inline namespace v3 {

// A processing instruction inside an element: <?target data?>.
class processing_instruction {
public:
    processing_instruction(std::string const& target, std::string const& data) : target_(target), data_(data) {}
    std::string const& get_target() const { return target_; }
    std::string const& get_data() const { return data_; }

private:
    std::string target_;
    std::string data_;
};

}  // namespace v3
}  // namespace velk::xml
