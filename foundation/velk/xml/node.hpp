#pragma once

#include <velk/core/export.hpp>
#include <velk/xml/cdata_section.hpp>
#include <velk/xml/comment.hpp>
#include <velk/xml/element.hpp>
#include <velk/xml/node_type.hpp>
#include <velk/xml/processing_instruction.hpp>
#include <velk/xml/text.hpp>

#include <string>
#include <utility>
#include <variant>

namespace velk::xml {
inline namespace v3 {

// Any child of an element.
class VELK_EXPORT node {
public:
    node(element const& value) : value_(value) {}
    node(element&& value) : value_(std::move(value)) {}
    node(text const& value) : value_(value) {}
    node(text&& value) : value_(std::move(value)) {}
    // A text made in place from its contents, without a text moved in.
    node(std::in_place_type_t<text>, std::string const& contents) : value_(std::in_place_type<text>, contents) {}
    node(std::in_place_type_t<text>, std::string&& contents) : value_(std::in_place_type<text>, std::move(contents)) {}
    node(cdata_section const& value) : value_(value) {}
    node(cdata_section&& value) : value_(std::move(value)) {}
    node(comment const& value) : value_(value) {}
    node(comment&& value) : value_(std::move(value)) {}
    node(processing_instruction const& value) : value_(value) {}
    node(processing_instruction&& value) : value_(std::move(value)) {}

    node_type get_type() const { return static_cast<node_type>(value_.index() + 1); }

    // Null when the node is of another type.
    element* as_element() { return std::get_if<element>(&value_); }
    element const* as_element() const { return std::get_if<element>(&value_); }
    text* as_text() { return std::get_if<text>(&value_); }
    text const* as_text() const { return std::get_if<text>(&value_); }
    cdata_section* as_cdata_section() { return std::get_if<cdata_section>(&value_); }
    cdata_section const* as_cdata_section() const { return std::get_if<cdata_section>(&value_); }
    comment const* as_comment() const { return std::get_if<comment>(&value_); }
    processing_instruction const* as_processing_instruction() const
    {
        return std::get_if<processing_instruction>(&value_);
    }

private:
    // Alternatives in the order of node_type, from 1.
    std::variant<text, element, cdata_section, comment, processing_instruction> value_;
};

}  // namespace v3
}  // namespace velk::xml
