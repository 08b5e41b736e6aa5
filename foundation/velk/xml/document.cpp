#include <velk/xml/document.hpp>

#include <velk/core/result/report.hpp>
#include <velk/xml/detail/safe_parser.hpp>
#include <velk/xml/detail/serializer.hpp>
#include <velk/xml/detail/tree_converter.hpp>
#include <velk/xml/xml_result_category.hpp>

#include <libxml/tree.h>

#include <optional>
#include <string_view>
#include <utility>

namespace velk::xml {
inline namespace v3 {

namespace {

constexpr std::string_view declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

}  // namespace

struct document::impl {
    std::optional<element> root;
};

document::document() : impl_(std::make_unique<impl>()) {}

document::document(document const& other) : impl_(std::make_unique<impl>())
{
    if (other.impl_) {
        impl_->root = other.impl_->root;
    }
}

document::document(document&& other) noexcept = default;

document& document::operator=(document const& other)
{
    if (this != &other) {
        document copy(other);
        impl_ = std::move(copy.impl_);
    }
    return *this;
}

document& document::operator=(document&& other) noexcept = default;

document::~document() = default;

bool document::load(core::byte_array const& bytes, core::result::stack& stack)
{
    detail::libxml2_document const parsed = detail::safe_parser::parse(bytes, stack);
    if (!parsed) {
        return false;
    }
    element root = detail::tree_converter::convert(*xmlDocGetRootElement(parsed.get()));
    if (!impl_) {
        impl_ = std::make_unique<impl>();
    }
    impl_->root = std::move(root);
    return true;
}

core::byte_array document::save(document const& value, core::result::stack& stack)
{
    element const* root = value.get_root_element();
    if (root == nullptr) {
        core::result::fresh<xml_result_category::no_root>(stack);
        return {};
    }
    core::byte_array out;
    out.reserve(4096);
    out.append(declaration);
    if (!detail::serializer::write(*root, out, stack)) {
        return {};
    }
    return out;
}

bool document::append_node(element const& root, core::result::stack& stack)
{
    return append_node(element(root), stack);
}

bool document::append_node(element&& root, core::result::stack& stack)
{
    if (get_root_element() != nullptr) {
        core::result::fresh<xml_result_category::root_exists>(stack);
        return false;
    }
    if (!impl_) {
        impl_ = std::make_unique<impl>();
    }
    impl_->root = std::move(root);
    return true;
}

element* document::get_root_element()
{
    return impl_ && impl_->root ? &*impl_->root : nullptr;
}

element const* document::get_root_element() const
{
    return impl_ && impl_->root ? &*impl_->root : nullptr;
}

}  // namespace v3
}  // namespace velk::xml
