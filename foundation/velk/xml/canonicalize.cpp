#include <velk/xml/canonicalize.hpp>

#include <velk/core/result/report.hpp>
#include <velk/xml/detail/libxml2_session.hpp>
#include <velk/xml/detail/namespace_uris.hpp>
#include <velk/xml/detail/safe_parser.hpp>
#include <velk/xml/xml_result_category.hpp>

#include <libxml/c14n.h>
#include <libxml/xmlIO.h>

#include <string_view>

namespace velk::xml {
inline namespace v3 {

namespace {

int append_bytes(void* context, char const* bytes, int length)
{
    try {
        static_cast<core::byte_array*>(context)->append(std::string_view(bytes, static_cast<std::size_t>(length)));
        return length;
    } catch (...) {
        return -1;
    }
}

}  // namespace

core::byte_array canonicalize(core::byte_array const& xml, canonicalization_parameters::version_1_0 const& parameters,
                              core::result::stack& stack)
{
    detail::libxml2_document const document = detail::safe_parser::parse(xml, stack);
    if (!document) {
        return {};
    }
    detail::namespace_uris::escape_for_canonical_form(*document);
    detail::libxml2_session session;
    core::byte_array canonical;
    canonical.reserve(xml.size());
    xmlOutputBufferPtr output = xmlOutputBufferCreateIO(&append_bytes, nullptr, &canonical, nullptr);
    if (output == nullptr) {
        core::result::fresh<xml_result_category, 8>(stack, "xmlOutputBufferCreateIO failed");
        return {};
    }
    int const written = xmlC14NDocSaveTo(document.get(), nullptr, XML_C14N_1_0, nullptr,
                                         parameters.with_comments ? 1 : 0, output);
    int const closed = xmlOutputBufferClose(output);
    if (written < 0 || closed < 0 || session.has_error()) {
        core::result::fresh<xml_result_category, 8>(
            stack, session.has_error() ? session.get_description() : std::string("xmlC14NDocSaveTo failed"));
        return {};
    }
    return canonical;
}

}  // namespace v3
}  // namespace velk::xml
