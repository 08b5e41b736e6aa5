#pragma once

#include <velk/core/export.hpp>

#include <memory>
#include <string>
#include <utility>

namespace velk::xml {
inline namespace v3 {

// A processing instruction inside an element: <?target data?>. Its two texts
// are kept apart from the node, shared by copies (they never change): the
// node of every element and text of a tree is then the size of one string.
class VELK_EXPORT processing_instruction {
public:
    processing_instruction(std::string target, std::string data)
        : parts_(std::make_shared<parts const>(parts{std::move(target), std::move(data)}))
    {
    }
    // Copied when moved too, so that no instruction is ever left without its
    // texts.
    processing_instruction(processing_instruction const&) = default;
    processing_instruction& operator=(processing_instruction const&) = default;

    std::string const& get_target() const { return parts_->target; }
    std::string const& get_data() const { return parts_->data; }

private:
    struct parts {
        std::string target;
        std::string data;
    };
    std::shared_ptr<parts const> parts_;
};

}  // namespace v3
}  // namespace velk::xml
