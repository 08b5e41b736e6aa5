#include <velk/cryptography/xml/detail/libxml_document.hpp>

#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/xml/detail/libxml_error_capture.hpp>

#include <libxml/parser.h>

#include <climits>
#include <mutex>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

namespace {

constexpr int parse_options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_COMPACT;

}  // namespace

libxml_document libxml_document::parse(core::byte_array const& bytes, core::result::stack& stack)
{
    static std::once_flag initialised;
    std::call_once(initialised, [] { xmlInitParser(); });

    libxml_document result;
    if (bytes.size() > static_cast<std::size_t>(INT_MAX)) {
        core::result::fresh<cryptography_result_category, 16>(stack, "documento grande demais");
        return result;
    }
    libxml_error_capture errors;
    result.document_.reset(xmlReadMemory(reinterpret_cast<char const*>(bytes.data()), static_cast<int>(bytes.size()),
                                         nullptr, "UTF-8", parse_options));
    if (result.document_ == nullptr) {
        core::result::fresh<cryptography_result_category, 16>(stack, errors.get_message("XML ilegível"));
        return result;
    }
    if (result.document_->intSubset != nullptr || result.document_->extSubset != nullptr) {
        result.document_.reset();
        core::result::fresh<cryptography_result_category, 16>(stack, "o documento declara um DTD");
        return result;
    }
    if (result.get_root() == nullptr) {
        result.document_.reset();
        core::result::fresh<cryptography_result_category, 16>(stack, "o documento não possui elemento raiz");
    }
    return result;
}

xmlNode* libxml_document::get_root() const
{
    return document_ == nullptr ? nullptr : xmlDocGetRootElement(document_.get());
}

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography
