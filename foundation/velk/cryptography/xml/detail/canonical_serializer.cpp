#include <velk/cryptography/xml/detail/canonical_serializer.hpp>

#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/xml/detail/element_access.hpp>
#include <velk/xml/node.hpp>
#include <velk/xml/qualified_name.hpp>

#include <libxml/uri.h>

#include <emmintrin.h>

#include <algorithm>
#include <array>
#include <bit>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

namespace {

constexpr std::string_view xml_namespace = "http://www.w3.org/XML/1998/namespace";
// Pieces go out when the buffer holds this much, so a large document is
// hashed as it is written instead of held whole.
constexpr std::size_t piece_size = 16 * 1024;

// What the canonical form escapes, by byte: in texts, in attribute values, or
// in both.
enum escape_kind : unsigned char { in_text = 1, in_attribute = 2 };

constexpr std::array<unsigned char, 256> make_escapes()
{
    std::array<unsigned char, 256> table{};
    table['&'] = in_text | in_attribute;
    table['<'] = in_text | in_attribute;
    table['>'] = in_text;
    table['"'] = in_attribute;
    table['\t'] = in_attribute;
    table['\n'] = in_attribute;
    table['\r'] = in_text | in_attribute;
    return table;
}

constexpr std::array<unsigned char, 256> escapes = make_escapes();

// ASCII name characters: those a name may start with, and those it may hold
// after the first. The colon is left out: a prefixed name takes the full check.
enum name_kind : unsigned char { name_inside = 1, name_start = 2 };
static_assert(name_start >> 1 == name_inside);

constexpr std::array<unsigned char, 256> make_name_kinds()
{
    std::array<unsigned char, 256> table{};
    for (int c = 'A'; c <= 'Z'; ++c) {
        table[c] = name_inside | name_start;
        table[c + ('a' - 'A')] = name_inside | name_start;
    }
    for (int c = '0'; c <= '9'; ++c) {
        table[c] = name_inside;
    }
    table['_'] = name_inside | name_start;
    table['-'] = name_inside;
    table['.'] = name_inside;
    return table;
}

constexpr std::array<unsigned char, 256> name_kinds = make_name_kinds();

// The tree's own rule for element names, decided here without a call for the
// names nearly every document has: a few ASCII letters, no prefix.
bool is_element_name(std::string const& name)
{
    std::size_t const size = name.size();
    if (size != 0 && (name_kinds[static_cast<unsigned char>(name[0])] & name_start) != 0) {
        std::size_t index = 1;
        while (index < size && (name_kinds[static_cast<unsigned char>(name[index])] & name_inside) != 0) {
            ++index;
        }
        if (index == size) {
            return true;
        }
    }
    return velk::xml::is_qualified_name(name);
}

// The pieces below are copied and checked 16 bytes at a time. A string holds
// its capacity and a terminator, never fewer than 16 bytes: a load of 16 from
// its start reads only its own memory, and the bytes past its end are masked
// off. The output has room for the 16 written past what is committed.
constexpr std::size_t lane = 16;

[[gnu::always_inline]] inline bool readable_in_one_load(std::string const& text)
{
    return text.capacity() + 1 >= lane;
}

[[gnu::always_inline]] inline unsigned bits_below(std::size_t size)
{
    return size >= lane ? 0xFFFFu : (1u << size) - 1;
}

[[gnu::always_inline]] inline __m128i between(__m128i bytes, char low, char high)
{
    return _mm_and_si128(_mm_cmpgt_epi8(bytes, _mm_set1_epi8(static_cast<char>(low - 1))),
                         _mm_cmpgt_epi8(_mm_set1_epi8(static_cast<char>(high + 1)), bytes));
}

// The bytes of the lane that are no ASCII name character (name_inside).
[[gnu::always_inline]] inline unsigned not_name_bytes(__m128i bytes)
{
    __m128i const good = _mm_or_si128(
        _mm_or_si128(_mm_or_si128(between(bytes, 'A', 'Z'), between(bytes, 'a', 'z')), between(bytes, '0', '9')),
        _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('_')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('-'))),
                     _mm_cmpeq_epi8(bytes, _mm_set1_epi8('.'))));
    return ~static_cast<unsigned>(_mm_movemask_epi8(good)) & 0xFFFFu;
}

// The bytes of the lane a text escapes.
[[gnu::always_inline]] inline unsigned text_escape_bytes(__m128i bytes)
{
    __m128i const found =
        _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('&')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('<'))),
                     _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('>')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r'))));
    return static_cast<unsigned>(_mm_movemask_epi8(found));
}

std::string_view escape_of(char c)
{
    switch (c) {
    case '&': return "&amp;";
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '"': return "&quot;";
    case '\t': return "&#x9;";
    case '\n': return "&#xA;";
    default: return "&#xD;";
    }
}

// Whether a namespace URI is absolute, as the canonical form requires. The
// few URIs a thread meets are remembered once found good.
bool is_absolute_uri(std::string_view uri)
{
    thread_local std::array<std::string, 4> known;
    thread_local std::size_t next = 0;
    for (std::string const& good : known) {
        if (!good.empty() && good == uri) {
            return true;
        }
    }
    std::string const text(uri);
    xmlURIPtr parsed = xmlParseURI(text.c_str());
    bool const absolute = parsed != nullptr && parsed->scheme != nullptr && *parsed->scheme != '\0';
    xmlFreeURI(parsed);
    if (absolute) {
        known[next] = text;
        next = (next + 1) % known.size();
    }
    return absolute;
}

// Attributes in the canonical order: those without namespace first, by name;
// then by namespace URI and local name.
bool comes_before(std::string_view a_uri, std::string_view a_name, std::string_view b_uri, std::string_view b_name)
{
    if (a_uri.empty() != b_uri.empty()) {
        return a_uri.empty();
    }
    int const by_uri = a_uri.compare(b_uri);
    return by_uri != 0 ? by_uri < 0 : a_name < b_name;
}

}  // namespace

namespace {

// The memory of the last buffer of the thread, for the next: a signature
// writes two canonical forms, and a point of sale signs one document after
// another.
struct spare_memory {
    std::unique_ptr<char[]> data;
    std::size_t capacity = 0;
};

thread_local spare_memory spare;

}  // namespace

canonical_serializer::buffer::buffer() : data_(std::move(spare.data)), capacity_(spare.capacity)
{
    spare.capacity = 0;
}

canonical_serializer::buffer::~buffer()
{
    // Memory grown by one large text goes back to the system.
    if (spare.data == nullptr && capacity_ <= 4 * piece_size) {
        spare.data = std::move(data_);
        spare.capacity = capacity_;
    }
}

void canonical_serializer::buffer::grow(std::size_t more)
{
    std::size_t const capacity = std::max(capacity_ * 2, std::max(size_ + more, piece_size + 1024));
    auto larger = std::make_unique<char[]>(capacity);
    if (size_ != 0) {
        std::memcpy(larger.get(), data_.get(), size_);
    }
    data_ = std::move(larger);
    capacity_ = capacity;
}

bool canonical_serializer::write(subtree const& what, sink const& output, core::result::stack& stack)
{
    out_.clear();
    scope_.truncate(0);
    problem_.clear();
    excluded_ = what.excluded;
    replacements_ = what.replacements;
    with_comments_ = what.with_comments;
    counted_id_ = what.counted_id;
    counted_ids_ = 0;
    output_ = &output;
    bool const written = write_apex(what);
    if (written && out_.size() != 0) {
        output(out_.view());
    }
    output_ = nullptr;
    out_.clear();
    if (!written) {
        core::result::fresh<cryptography_result_category::canonicalization_failed>(stack, problem_);
    }
    return written;
}

void canonical_serializer::flush_if_full()
{
    if (out_.size() >= piece_size) {
        (*output_)(out_.view());
        out_.clear();
    }
}

// The tree's own rule: a name it can save is a name the canonical form takes,
// and one it would refuse to save is refused here too.
bool canonical_serializer::accept_name(std::string const& name)
{
    if (is_element_name(name)) {
        return true;
    }
    problem_ = "nome de elemento inválido: \"" + name + "\"";
    return false;
}

bool canonical_serializer::start_tag(velk::xml::element const& value)
{
    std::string const& name = velk::xml::detail::element_access::contents(value)->qualified_name;
    if (!accept_name(name)) {
        return false;
    }
    out_.put('<');
    out_.put(name);
    return true;
}

bool canonical_serializer::write_apex(subtree const& what)
{
    if (!start_tag(what.apex)) {
        return false;
    }
    // Everything in scope at apex is rendered on it.
    namespace_scope context;
    for (velk::xml::element const* ancestor : what.ancestors) {
        context.enter(*ancestor);
    }
    context.enter(what.apex);
    for (namespace_scope::entry const& declaration : context.in_scope()) {
        scope_.push(declaration);
    }
    auto const in_scope = scope_.since(0);
    declarations_.assign(in_scope.begin(), in_scope.end());
    if (!write_declarations()) {
        return false;
    }
    gather_attributes(what.apex);
    // The xml: attributes of the ancestors, the nearest first, unless apex
    // has its own of that name.
    for (std::size_t index = what.ancestors.size(); index-- > 0;) {
        for (velk::xml::attribute const& property : what.ancestors[index]->get_attributes()) {
            std::string_view const name = property.get_name();
            if (velk::xml::prefix_of(name) != "xml") {
                continue;
            }
            std::string_view const local = velk::xml::local_part_of(name);
            bool const present = std::any_of(attributes_.begin(), attributes_.end(), [&](attribute_entry const& entry) {
                return entry.uri == xml_namespace && entry.local == local;
            });
            if (!present) {
                attributes_.push_back({name, local, xml_namespace, &property.get_value()});
            }
        }
    }
    write_attributes();
    return write_content_and_end(what.apex);
}

bool canonical_serializer::write_content_and_end(velk::xml::element const& value)
{
    out_.put('>');
    if (!write_children(value)) {
        return false;
    }
    out_.put("</");
    out_.put(velk::xml::detail::element_access::contents(value)->qualified_name);
    out_.put('>');
    return true;
}

bool canonical_serializer::write_element(velk::xml::element const& value)
{
    if (!start_tag(value)) {
        return false;
    }
    std::size_t const mark = scope_.size();
    scope_.enter(value);
    // A declaration is rendered where it changes what the parent had in scope
    // (no default namespace counting as an empty one).
    declarations_.clear();
    for (namespace_scope::entry const& declaration : scope_.since(mark)) {
        namespace_scope::entry const* outer = scope_.find_below(mark, declaration.prefix);
        bool const same = outer == nullptr ? declaration.prefix.empty() && declaration.uri.empty()
                                           : outer->uri == declaration.uri;
        if (!same) {
            declarations_.push_back(declaration);
        }
    }
    if (!write_declarations()) {
        return false;
    }
    gather_attributes(value);
    write_attributes();
    if (!write_content_and_end(value)) {
        return false;
    }
    scope_.truncate(mark);
    flush_if_full();
    return true;
}

// Most elements of a document are the bare kind: no prefix, no attribute, no
// declaration, and the very namespace of a parent that has no prefix either.
// Such an element changes nothing in scope and renders no declaration, so
// the walk of the scope is skipped for it.
[[gnu::always_inline]] inline bool canonical_serializer::plain_child_of(velk::xml::element const& child,
                                                                     velk::xml::element const& parent)
{
    using access = velk::xml::detail::element_access;
    auto const* const own = access::contents(child);
    auto const* const above = access::contents(parent);
    return own != nullptr && above != nullptr && own->more == nullptr && own->prefixed_local_name == nullptr &&
           above->prefixed_local_name == nullptr && own->namespace_uri == above->namespace_uri;
}

// Both tag writers run once per element: inlined into their two callers,
// which a call per tag would cost a good part of an element's time.
[[gnu::always_inline]] inline char* canonical_serializer::open_plain_tag(std::string const& name, std::size_t room)
{
    std::size_t const size = name.size();
    char* position = out_.reserve(size + 2 + room + lane);
    *position++ = '<';
    char const* const source = name.data();
    if (size <= lane && readable_in_one_load(name)) {
        // Nearly every name: copied and checked in one lane.
        __m128i const bytes = _mm_loadu_si128(reinterpret_cast<__m128i const*>(source));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(position), bytes);
        bool const plain = size != 0 && (name_kinds[static_cast<unsigned char>(source[0])] & name_start) != 0 &&
                           (not_name_bytes(bytes) & bits_below(size)) == 0;
        if (!plain && !accept_name(name)) {
            return nullptr;
        }
    } else {
        // The name copied and checked in one pass, as is_element_name checks
        // it (the first character read as the string's terminator when empty).
        unsigned valid = name_kinds[static_cast<unsigned char>(source[0])] >> 1;
        for (std::size_t index = 0; index < size; ++index) {
            position[index] = source[index];
            valid &= name_kinds[static_cast<unsigned char>(source[index])];
        }
        if (valid == 0 && !accept_name(name)) {
            return nullptr;
        }
    }
    position += size;
    *position++ = '>';
    return position;
}

// Needs `lane` bytes of room past the tag.
[[gnu::always_inline]] inline char* canonical_serializer::close_tag(char* position, std::string const& name)
{
    *position++ = '<';
    *position++ = '/';
    if (name.size() <= lane && readable_in_one_load(name)) {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(position),
                         _mm_loadu_si128(reinterpret_cast<__m128i const*>(name.data())));
    } else {
        buffer::copy(position, name.data(), name.size());
    }
    position += name.size();
    *position++ = '>';
    return position;
}

bool canonical_serializer::write_plain_element(velk::xml::element const& value)
{
    std::string const& name = velk::xml::detail::element_access::contents(value)->qualified_name;
    char* position = open_plain_tag(name, 0);
    if (position == nullptr) {
        return false;
    }
    out_.commit(position);
    if (!write_children(value)) {
        return false;
    }
    out_.commit(close_tag(out_.reserve(name.size() + 3 + lane), name));
    flush_if_full();
    return true;
}

namespace {

// Copies the text up to its first byte to escape, and gives how many bytes
// that is (all of them when none); writes up to a lane past them.
[[gnu::always_inline]] inline std::size_t copy_until_escape(char* target, std::string const& text)
{
    std::size_t const size = text.size();
    std::size_t const readable = text.capacity() + 1;
    char const* const source = text.data();
    std::size_t index = 0;
    while (index < size && readable - index >= lane) {
        __m128i const bytes = _mm_loadu_si128(reinterpret_cast<__m128i const*>(source + index));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(target + index), bytes);
        unsigned const found = text_escape_bytes(bytes) & bits_below(size - index);
        if (found != 0) {
            return index + static_cast<std::size_t>(std::countr_zero(found));
        }
        index += lane;
    }
    while (index < size && (escapes[static_cast<unsigned char>(source[index])] & in_text) == 0) {
        target[index] = source[index];
        ++index;
    }
    return std::min(index, size);
}

}  // namespace

// Most elements of a document are bare ones holding one text: written here
// whole, in one room of the buffer, without a walk of their children.
[[gnu::always_inline]] inline bool canonical_serializer::write_plain_leaf(std::string const& name,
                                                                       std::string const& contents)
{
    char* position = open_plain_tag(name, contents.size() + name.size() + 3 + lane);
    if (position == nullptr) {
        return false;
    }
    std::size_t const size = contents.size();
    std::size_t const index = copy_until_escape(position, contents);
    position += index;
    if (index < size) {
        out_.commit(position);
        write_escaped(std::string_view(contents).substr(index), in_text);
        position = out_.reserve(name.size() + 3 + lane);
    }
    out_.commit(close_tag(position, name));
    flush_if_full();
    return true;
}

bool canonical_serializer::write_declarations()
{
    // By prefix, the default namespace (empty prefix) first.
    std::sort(declarations_.begin(), declarations_.end(),
              [](namespace_scope::entry const& a, namespace_scope::entry const& b) { return a.prefix < b.prefix; });
    for (namespace_scope::entry const& declaration : declarations_) {
        if (declaration.prefix == "xml") {
            continue;
        }
        if (!declaration.uri.empty() && !is_absolute_uri(declaration.uri)) {
            problem_ = "URI de namespace relativa: \"" + std::string(declaration.uri) + "\"";
            return false;
        }
        out_.put(" xmlns");
        if (!declaration.prefix.empty()) {
            out_.put(':');
            out_.put(declaration.prefix);
        }
        out_.put("=\"");
        // A URI read or accepted by the tree holds no "<", quote or line end:
        // only its "&" needs escaping.
        for (char const c : declaration.uri) {
            if (c == '&') {
                out_.put("&amp;");
            } else {
                out_.put(c);
            }
        }
        out_.put('"');
    }
    return true;
}

void canonical_serializer::gather_attributes(velk::xml::element const& value)
{
    attributes_.clear();
    for (velk::xml::attribute const& property : value.get_attributes()) {
        std::string_view const name = property.get_name();
        if (!counted_id_.empty() && name == "Id" && property.get_value() == counted_id_) {
            ++counted_ids_;
        }
        std::string_view const prefix = velk::xml::prefix_of(name);
        std::string_view uri;
        if (prefix == "xml") {
            uri = xml_namespace;
        } else if (!prefix.empty()) {
            // An unprefixed attribute is in no namespace; a prefixed one is in
            // the namespace its prefix names in scope, if any.
            if (namespace_scope::entry const* found = scope_.find(prefix)) {
                uri = found->uri;
            }
        }
        attributes_.push_back({name, uri.empty() ? name : velk::xml::local_part_of(name), uri, &property.get_value()});
    }
}

void canonical_serializer::write_attributes()
{
    if (attributes_.size() > 1) {
        std::stable_sort(attributes_.begin(), attributes_.end(), [](attribute_entry const& a, attribute_entry const& b) {
            return comes_before(a.uri, a.local, b.uri, b.local);
        });
    }
    for (attribute_entry const& entry : attributes_) {
        out_.put(' ');
        out_.put(entry.name);
        out_.put("=\"");
        write_escaped(*entry.value, in_attribute);
        out_.put('"');
    }
}

bool canonical_serializer::write_children(velk::xml::element const& value)
{
    for (replacement const& replaced : replacements_) {
        if (replaced.target == &value) {
            write_escaped(*replaced.contents, in_text);
            return true;
        }
    }
    // The children straight from the tree's list: this loop runs for every
    // element of the document.
    using access = velk::xml::detail::element_access;
    velk::xml::node_list const& children = access::contents(value)->children;
    for (auto position = children.begin(); position != children.end(); ++position) {
        velk::xml::node const& child = *position;
        // The walk is bound by the wait for each child's contents, which lie
        // wherever the tree took them from: the next sibling's are asked for
        // while this one is written.
        if (auto const following = std::next(position); following != children.end()) {
            if (velk::xml::element const* next = following->as_element()) {
                __builtin_prefetch(access::contents(*next));
            }
        }
        if (velk::xml::element const* nested = child.as_element()) {
            if (nested == excluded_) {
                continue;
            }
            if (!plain_child_of(*nested, value)) {
                if (!write_element(*nested)) {
                    return false;
                }
                continue;
            }
            velk::xml::node_list const& grandchildren = access::contents(*nested)->children;
            velk::xml::text const* only_text = replacements_.empty() && grandchildren.size() == 1
                                                   ? grandchildren.front().as_text()
                                                   : nullptr;
            bool const written = only_text != nullptr
                                     ? write_plain_leaf(access::contents(*nested)->qualified_name,
                                                        only_text->get_contents())
                                     : write_plain_element(*nested);
            if (!written) {
                return false;
            }
        } else if (velk::xml::text const* contents = child.as_text()) {
            write_escaped(contents->get_contents(), in_text);
        } else if (velk::xml::cdata_section const* section = child.as_cdata_section()) {
            write_cdata_as_text(section->get_contents());
        } else if (velk::xml::comment const* remark = child.as_comment()) {
            if (with_comments_) {
                out_.put("<!--");
                write_normalised_line_ends(remark->get_contents());
                out_.put("-->");
            }
        } else if (velk::xml::processing_instruction const* instruction = child.as_processing_instruction()) {
            out_.put("<?");
            out_.put(instruction->get_target());
            if (!instruction->get_data().empty()) {
                out_.put(' ');
                write_normalised_line_ends(instruction->get_data());
            }
            out_.put("?>");
        }
    }
    return true;
}

void canonical_serializer::write_escaped(std::string_view text, unsigned char kind)
{
    std::size_t run = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        char const c = text[index];
        if ((escapes[static_cast<unsigned char>(c)] & kind) != 0) {
            out_.put(text.substr(run, index - run));
            out_.put(escape_of(c));
            run = index + 1;
        }
    }
    out_.put(text.substr(run));
}

// A parser turns every CR LF and lone CR of a CDATA section into LF; the
// section's text is then escaped as any text.
void canonical_serializer::write_cdata_as_text(std::string_view text)
{
    std::size_t run = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        char const c = text[index];
        if ((escapes[static_cast<unsigned char>(c)] & in_text) == 0) {
            continue;
        }
        out_.put(text.substr(run, index - run));
        run = index + 1;
        if (c != '\r') {
            out_.put(escape_of(c));
        } else if (index + 1 >= text.size() || text[index + 1] != '\n') {
            out_.put('\n');
        }
    }
    out_.put(text.substr(run));
}

// Comments and processing instructions keep their text as it is, but for the
// line ends a parser normalises.
void canonical_serializer::write_normalised_line_ends(std::string_view text)
{
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] != '\r') {
            out_.put(text[index]);
        } else if (index + 1 >= text.size() || text[index + 1] != '\n') {
            out_.put('\n');
        }
    }
}

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography
