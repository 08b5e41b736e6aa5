#pragma once

#include <velk/core/export.hpp>

#include <string>
#include <utility>

namespace velk::xml {
inline namespace v3 {

// A processing instruction inside an element: <?target data?>.
class VELK_EXPORT processing_instruction {
public:
    processing_instruction(std::string target, std::string data) : target_(std::move(target)), data_(std::move(data))
    {
    }
    std::string const& get_target() const { return target_; }
    std::string const& get_data() const { return data_; }

private:
    std::string target_;
    std::string data_;
};

}  // namespace v3
}  // namespace velk::xml
