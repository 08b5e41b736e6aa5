#include <velk/xml/detail/serializer.hpp>

#include <velk/core/result/report.hpp>
#include <velk/xml/detail/namespace_uris.hpp>
#include <velk/xml/detail/xml_names.hpp>
#include <velk/xml/node.hpp>
#include <velk/xml/xml_result_category.hpp>

#include <array>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velk::xml {
inline namespace v3 {
namespace detail {

namespace {

struct escape {
    unsigned char character;
    std::string_view replacement;
};

using escape_table = std::array<std::string_view, 256>;

constexpr escape_table make_escape_table(std::initializer_list<escape> escapes)
{
    escape_table table{};
    for (escape const& entry : escapes) {
        table[entry.character] = entry.replacement;
    }
    return table;
}

// The same characters Canonical XML escapes, so that a saved tree and its
// canonical form differ as little as possible.
constexpr escape_table text_escapes =
    make_escape_table({{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'\r', "&#13;"}});
constexpr escape_table attribute_escapes = make_escape_table(
    {{'&', "&amp;"}, {'<', "&lt;"}, {'"', "&quot;"}, {'\t', "&#9;"}, {'\n', "&#10;"}, {'\r', "&#13;"}});

constexpr std::string_view cdata_start = "<![CDATA[";
constexpr std::string_view cdata_end = "]]>";

class writer {
public:
    explicit writer(core::result::stack& stack) : stack_(stack) {}

    bool write_element(element const& value);
    std::string const& get_text() const { return out_; }

private:
    void append(std::string_view text) { out_.append(text); }
    void append(char character) { out_.push_back(character); }
    void append_escaped(std::string_view text, escape_table const& table);
    void write_node(node const& child);
    void write_cdata(std::string_view contents);
    void write_declaration(std::string_view prefix, std::string_view uri);
    // Declares prefix for uri on the element being written (whose declarations
    // start at `mark` in the scope) unless it is in scope already.
    void declare_if_needed(std::size_t mark, std::string_view prefix, std::string const& uri);

    // Gathered in a string, whose appends are inline, and handed over once.
    std::string out_;
    core::result::stack& stack_;
    // The first declared URI that no parser would read back.
    std::optional<std::string_view> bad_uri_;
    // Each declaration in scope, innermost last.
    struct declaration {
        std::string_view prefix;
        std::string_view uri;
        // A text of the tree found equal to uri once: the elements of a tree
        // share their namespace's text, so the next comparison is of
        // addresses only.
        char const* same_text = nullptr;
    };
    std::vector<declaration> scope_;
};

void writer::append_escaped(std::string_view text, escape_table const& table)
{
    std::size_t run = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        std::string_view const replacement = table[static_cast<unsigned char>(text[index])];
        if (!replacement.empty()) {
            append(text.substr(run, index - run));
            append(replacement);
            run = index + 1;
        }
    }
    append(text.substr(run));
}

void writer::write_cdata(std::string_view contents)
{
    append(cdata_start);
    // "]]>" cannot stand inside a section: end it after "]]" and open another
    // for the ">".
    for (auto end = contents.find(cdata_end); end != std::string_view::npos; end = contents.find(cdata_end)) {
        append(contents.substr(0, end + 2));
        append(cdata_end);
        append(cdata_start);
        contents.remove_prefix(end + 2);
    }
    append(contents);
    append(cdata_end);
}

void writer::write_declaration(std::string_view prefix, std::string_view uri)
{
    // A URI that the parser would refuse makes the element fail.
    if (!uri.empty() && !bad_uri_ && !namespace_uris::problem_of(std::string(uri)).empty()) {
        bad_uri_ = uri;
    }
    append(" xmlns");
    if (!prefix.empty()) {
        append(':');
        append(prefix);
    }
    append("=\"");
    append_escaped(uri, attribute_escapes);
    append('"');
    scope_.push_back({prefix, uri});
}

void writer::declare_if_needed(std::size_t mark, std::string_view prefix, std::string const& uri)
{
    if (uri.empty() || prefix == "xml") {
        return;
    }
    for (std::size_t index = scope_.size(); index-- > 0;) {
        declaration& found = scope_[index];
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
    write_declaration(prefix, uri);
}

void writer::write_node(node const& child)
{
    if (text const* value = child.as_text()) {
        append_escaped(value->get_contents(), text_escapes);
    } else if (cdata_section const* section = child.as_cdata_section()) {
        write_cdata(section->get_contents());
    } else if (comment const* remark = child.as_comment()) {
        append("<!--");
        append(remark->get_contents());
        append("-->");
    } else if (processing_instruction const* instruction = child.as_processing_instruction()) {
        append("<?");
        append(instruction->get_target());
        if (!instruction->get_data().empty()) {
            append(' ');
            append(instruction->get_data());
        }
        append("?>");
    }
}

bool writer::write_element(element const& value)
{
    std::string const& name = value.get_qualified_name();
    std::string_view prefix;
    if (!is_valid_qualified_name(name, prefix)) {
        core::result::fresh<xml_result_category::invalid_name>(stack_, name);
        return false;
    }
    append('<');
    append(name);

    std::size_t const mark = scope_.size();
    for (namespace_id const& declaration : value.get_namespaces()) {
        write_declaration(declaration.get_prefix(), declaration.get_uri());
    }
    declare_if_needed(mark, prefix, value.get_namespace_uri());
    auto const& attributes = value.get_attributes();
    for (attribute const& property : attributes) {
        // An unprefixed attribute is in no namespace, whatever the default one.
        if (!property.get_namespace_uri().empty()) {
            if (std::string_view const attribute_prefix = prefix_of(property.get_name()); !attribute_prefix.empty()) {
                declare_if_needed(mark, attribute_prefix, property.get_namespace_uri());
            }
        }
    }
    if (bad_uri_) {
        core::result::fresh<xml_result_category::invalid_name>(stack_, std::string(*bad_uri_));
        return false;
    }
    for (attribute const& property : attributes) {
        append(' ');
        append(property.get_name());
        append("=\"");
        append_escaped(property.get_value(), attribute_escapes);
        append('"');
    }

    const_node_range const children = value.get_node_range();
    if (children.empty()) {
        append("/>");
    } else {
        append('>');
        for (node const& child : children) {
            if (element const* nested = child.as_element()) {
                if (!write_element(*nested)) {
                    return false;
                }
            } else {
                write_node(child);
            }
        }
        append("</");
        append(name);
        append('>');
    }
    scope_.resize(mark);
    return true;
}

}  // namespace

bool serializer::write(element const& root, core::byte_array& out, core::result::stack& stack)
{
    writer text(stack);
    if (!text.write_element(root)) {
        return false;
    }
    out.append(text.get_text());
    return true;
}

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml
