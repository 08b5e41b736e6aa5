#include <velk/cryptography/xml/detail/namespace_scope.hpp>

#include <velk/xml/qualified_name.hpp>

#include <string>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

std::string_view element_prefix(velk::xml::element const& value)
{
    std::string const& qualified = value.get_qualified_name();
    std::size_t const local_size = value.get_name().size();
    return local_size == qualified.size() ? std::string_view()
                                          : std::string_view(qualified).substr(0, qualified.size() - local_size - 1);
}

void namespace_scope::enter(velk::xml::element const& value)
{
    std::size_t const mark = entries_.size();
    for (velk::xml::namespace_id const& declaration : value.get_namespaces()) {
        std::string_view const prefix = declaration.get_prefix();
        std::string_view const uri = declaration.get_uri();
        entries_.push_back({prefix, uri});
    }
    declare_if_needed(mark, element_prefix(value), value.get_namespace_uri());
    for (velk::xml::attribute const& property : value.get_attributes()) {
        // An unprefixed attribute is in no namespace, whatever the default.
        std::string_view const prefix = velk::xml::prefix_of(property.get_name());
        if (!prefix.empty() && !property.get_namespace_uri().empty()) {
            declare_if_needed(mark, prefix, property.get_namespace_uri());
        }
    }
}

void namespace_scope::declare_if_needed(std::size_t mark, std::string_view prefix, std::string_view uri)
{
    if (uri.empty() || prefix == "xml") {
        return;
    }
    for (std::size_t index = entries_.size(); index-- > 0;) {
        entry const& found = entries_[index];
        if (found.prefix == prefix) {
            // A declaration on the element itself wins even when it differs.
            if (index >= mark || found.same_text == uri.data()) {
                return;
            }
            if (found.uri == uri) {
                found.same_text = uri.data();
                return;
            }
            break;
        }
    }
    entries_.push_back({prefix, uri});
}

namespace_scope::entry const* namespace_scope::find(std::string_view prefix) const
{
    return find_below(entries_.size(), prefix);
}

namespace_scope::entry const* namespace_scope::find_below(std::size_t mark, std::string_view prefix) const
{
    for (std::size_t index = mark; index-- > 0;) {
        if (entries_[index].prefix == prefix) {
            return &entries_[index];
        }
    }
    return nullptr;
}

std::vector<namespace_scope::entry> namespace_scope::in_scope() const
{
    std::vector<entry> found;
    for (std::size_t index = entries_.size(); index-- > 0;) {
        entry const& candidate = entries_[index];
        bool shadowed = false;
        for (entry const& taken : found) {
            shadowed = shadowed || taken.prefix == candidate.prefix;
        }
        if (!shadowed) {
            found.push_back(candidate);
        }
    }
    std::erase_if(found, [](entry const& value) { return value.uri.empty(); });
    return found;
}

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography
