#include <velk/xml/element.hpp>

#include <velk/core/result/report.hpp>
#include <velk/core/detail/short_string.hpp>
#include <velk/xml/detail/element_access.hpp>
#include <velk/xml/detail/namespace_uris.hpp>
#include <velk/xml/detail/xml_names.hpp>
#include <velk/xml/node.hpp>
#include <velk/xml/xml_result_category.hpp>

#include <utility>

namespace velk::xml {
inline namespace v3 {

namespace {

using detail::element_access;
using contents_type = element_access::contents_type;

std::vector<attribute> const no_attributes;
std::vector<namespace_id> const no_namespaces;
std::string const no_uri;

namespace_id const* declaration_of(contents_type const& value, std::string_view prefix)
{
    if (value.more != nullptr) {
        for (auto const& declaration : value.more->namespaces) {
            if (declaration.get_prefix() == prefix) {
                return &declaration;
            }
        }
    }
    return nullptr;
}

bool declares(contents_type const& value, std::string_view prefix)
{
    return declaration_of(value, prefix) != nullptr;
}

using shared_uri = std::shared_ptr<std::string const>;

// What the prefix names at `scope` as far as the element itself tells: its own
// declaration, or its own namespace when it is written with that prefix. The
// element's own namespace is shared when it is the same text.
shared_uri resolve(contents_type const& scope, std::string_view prefix)
{
    bool const own_prefix = scope.prefix() == prefix && scope.namespace_uri != nullptr;
    if (namespace_id const* declaration = declaration_of(scope, prefix)) {
        if (declaration->get_uri().empty()) {
            return nullptr;
        }
        if (own_prefix && *scope.namespace_uri == declaration->get_uri()) {
            return scope.namespace_uri;
        }
        return detail::namespace_uris::shared(declaration->get_uri());
    }
    return own_prefix ? scope.namespace_uri : nullptr;
}

// Each element gets its namespace at most once, so building a tree from the
// leaves up costs one visit per element in all.
void adopt(contents_type const& parent, element& child)
{
    contents_type* contents = element_access::contents(child);
    // A parent with no namespace and no declaration has none to give: the
    // common case of a tree built from the leaves up.
    if (contents == nullptr || contents->namespace_uri != nullptr ||
        (parent.namespace_uri == nullptr && parent.more == nullptr)) {
        return;
    }
    std::string_view const prefix = contents->prefix();
    if (declares(*contents, prefix)) {
        return;
    }
    shared_uri uri = resolve(parent, prefix);
    if (uri == nullptr) {
        return;
    }
    contents->namespace_uri = std::move(uri);
    for (node& grandchild : contents->children) {
        if (element* value = grandchild.as_element()) {
            adopt(*contents, *value);
        }
    }
}

void adopt_all(contents_type& parent)
{
    for (node& child : parent.children) {
        if (element* value = child.as_element()) {
            adopt(parent, *value);
        }
    }
}

bool is_namespace_declaration(std::string const& name)
{
    return name == "xmlns" || detail::prefix_of(name) == "xmlns";
}

template <class Attributes>
auto find_in(Attributes& attributes, std::string const& namespace_uri, std::string const& name)
    -> decltype(&attributes.front())
{
    for (auto& candidate : attributes) {
        bool const found = namespace_uri.empty() ? candidate.get_name() == name
                                                 : candidate.get_namespace_uri() == namespace_uri &&
                                                       detail::local_part_of(candidate.get_name()) == name;
        if (found) {
            return &candidate;
        }
    }
    return nullptr;
}

template <class Nodes>
auto find_child_in(Nodes& children, std::string const& name) -> decltype(children.front().as_element())
{
    for (auto& child : children) {
        auto* value = child.as_element();
        if (value != nullptr && value->get_name() == name) {
            return value;
        }
    }
    return nullptr;
}

}  // namespace

element::impl::impl(impl const& other)
    : qualified_name(other.qualified_name),
      prefixed_local_name(other.prefixed_local_name ? std::make_unique<std::string>(*other.prefixed_local_name)
                                                    : nullptr),
      namespace_uri(other.namespace_uri),
      more(other.more ? std::make_unique<extras>(*other.more) : nullptr),
      children(other.children)
{
}

void element::impl::set_name(std::string name)
{
    std::string_view const local = detail::local_part_of(name);
    if (local.size() == name.size()) {
        prefixed_local_name.reset();
    } else {
        prefixed_local_name = std::make_unique<std::string>(local);
    }
    qualified_name = std::move(name);
}

element::impl::~impl() = default;

element::impl::impl(std::string_view name) : qualified_name(core::detail::short_string(name))
{
    std::string_view const local = detail::local_part_of(name);
    if (local.size() != name.size()) {
        prefixed_local_name = std::make_unique<std::string>(local);
    }
}

std::string const& element::impl::uri() const
{
    return namespace_uri == nullptr ? no_uri : *namespace_uri;
}

element::impl::extras& element::impl::more_or_new()
{
    if (more == nullptr) {
        more = std::make_unique<extras>();
    }
    return *more;
}

element::element() : impl_(std::make_unique<impl>()) {}

element::element(std::string const& name) : impl_(std::make_unique<impl>(std::string_view(name))) {}

element::element(std::string const& name, text const& contents) : element(name)
{
    impl_->children.emplace_back(contents);
}

element::element(std::string const& name, cdata_section const& contents) : element(name)
{
    impl_->children.emplace_back(contents);
}

element::element(std::unique_ptr<impl> contents) : impl_(std::move(contents)) {}

element::element(element const& other) : impl_(other.impl_ ? std::make_unique<impl>(*other.impl_) : nullptr) {}

element::element(element&& other) noexcept = default;

element& element::operator=(element const& other)
{
    if (this != &other) {
        // Copy first: `other` may live inside this tree.
        impl_ = other.impl_ ? std::make_unique<impl>(*other.impl_) : nullptr;
    }
    return *this;
}

element& element::operator=(element&& other) noexcept = default;

element::~element() = default;

bool element::append_attribute(attribute const& value, core::result::stack& stack)
{
    std::string const& name = value.get_name();
    // A declaration written as an attribute would turn into a namespace when
    // read back; declarations go through append_namespace.
    if (!detail::is_valid_qualified_name(name) || is_namespace_declaration(name)) {
        core::result::fresh<xml_result_category::invalid_name>(stack, name);
        return false;
    }
    for (auto const& existing : get_attributes()) {
        if (existing.get_name() == name) {
            core::result::fresh<xml_result_category::duplicate_attribute>(stack, name);
            return false;
        }
    }
    impl_->more_or_new().attributes.push_back(value);
    return true;
}

bool element::append_namespace(namespace_id const& value, core::result::stack& stack)
{
    std::string const& prefix = value.get_prefix();
    // Only the default namespace may be undeclared with an empty URI; the
    // prefixes "xml" and "xmlns" are reserved. A URI without a scheme would
    // not read back, nor be signed.
    bool const valid = (prefix.empty() || (detail::is_valid_local_name(prefix) && prefix != "xml" &&
                                           prefix != "xmlns" && !value.get_uri().empty())) &&
                       detail::namespace_uris::problem_of(value.get_uri()).empty();
    if (!valid) {
        core::result::fresh<xml_result_category::invalid_name>(stack, prefix);
        return false;
    }
    if (declares(*impl_, prefix)) {
        core::result::fresh<xml_result_category::duplicate_prefix>(stack, prefix);
        return false;
    }
    impl_->more_or_new().namespaces.push_back(value);
    if (impl_->prefix() == prefix) {
        impl_->namespace_uri = detail::namespace_uris::shared(value.get_uri());
    }
    adopt_all(*impl_);
    return true;
}

void element::adopt_namespace(node& child) const
{
    if (element* value = child.as_element()) {
        adopt(*impl_, *value);
    }
}

void element::append_node(element const& child)
{
    adopt_namespace(impl_->children.emplace_back(child));
}

void element::append_node(element&& child)
{
    adopt_namespace(impl_->children.emplace_back(std::move(child)));
}

void element::append_node(text&& child)
{
    impl_->children.emplace_back(std::move(child));
}

void element::append_node(text const& child)
{
    impl_->children.emplace_back(child);
}

void element::append_node(cdata_section const& child)
{
    impl_->children.emplace_back(child);
}

void element::append_node(cdata_section&& child)
{
    impl_->children.emplace_back(std::move(child));
}

void element::append_node(node const& child)
{
    adopt_namespace(impl_->children.emplace_back(child));
}

void element::append_node(node&& child)
{
    adopt_namespace(impl_->children.emplace_back(std::move(child)));
}

element& element::append_element(std::string_view name)
{
    auto contents = std::make_unique<impl>(name);
    // What adopt would give the child once under this element, given now.
    if (impl_->more != nullptr) {
        contents->namespace_uri = resolve(*impl_, contents->prefix());
    } else if (impl_->namespace_uri != nullptr && impl_->prefix() == contents->prefix()) {
        // Nothing declared here: a child written with this element's prefix
        // is in its namespace.
        contents->namespace_uri = impl_->namespace_uri;
    }
    return *impl_->children.emplace_back(element(std::move(contents))).as_element();
}

void element::append_text(std::string const& contents)
{
    impl_->children.emplace_back(std::in_place_type<text>, contents);
}

void element::append_text(std::string&& contents)
{
    impl_->children.emplace_back(std::in_place_type<text>, std::move(contents));
}

attribute* element::find_attribute(std::string const& namespace_uri, std::string const& name)
{
    return impl_->more == nullptr ? nullptr : find_in(impl_->more->attributes, namespace_uri, name);
}

attribute const* element::find_attribute(std::string const& namespace_uri, std::string const& name) const
{
    return impl_->more == nullptr ? nullptr : find_in(std::as_const(impl_->more->attributes), namespace_uri, name);
}

std::string element::get_contents() const
{
    std::string contents;
    for (node const& child : impl_->children) {
        if (text const* value = child.as_text()) {
            contents += value->get_contents();
        } else if (cdata_section const* section = child.as_cdata_section()) {
            contents += section->get_contents();
        }
    }
    return contents;
}

void element::set_contents(std::string const& contents)
{
    impl_->children.clear();
    impl_->children.emplace_back(text(contents));
}

std::string const& element::get_name() const
{
    return impl_->local_name();
}

std::string const& element::get_qualified_name() const
{
    return impl_->qualified_name;
}

std::string element::get_prefix() const
{
    return std::string(impl_->prefix());
}

std::string const& element::get_namespace_uri() const
{
    return impl_->uri();
}

void element::set_namespace_uri(std::string const& uri)
{
    impl_->namespace_uri = detail::namespace_uris::shared(uri);
    adopt_all(*impl_);
}

std::vector<attribute> const& element::get_attributes() const
{
    return impl_->more == nullptr ? no_attributes : impl_->more->attributes;
}

std::vector<namespace_id> const& element::get_namespaces() const
{
    return impl_->more == nullptr ? no_namespaces : impl_->more->namespaces;
}

mutable_node_range element::get_node_range() &
{
    return mutable_node_range(impl_->children, this);
}

const_node_range element::get_node_range() const&
{
    return const_node_range(impl_->children);
}

element* element::find_child(std::string const& name)
{
    return find_child_in(impl_->children, name);
}

element const* element::find_child(std::string const& name) const
{
    return find_child_in(impl_->children, name);
}

}  // namespace v3
}  // namespace velk::xml
