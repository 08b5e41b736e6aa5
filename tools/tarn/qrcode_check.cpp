#include "qrcode_check.hpp"

#include <sefaz-sim/xml_reading.hpp>
#include <velk/erp/tarn/nfe/qrcode/obter_url_qrcode.hpp>
#include <velk/xml/document.hpp>

#include <memory>
#include <vector>

namespace velk::tools::tarn {

namespace {

namespace nfe = erp::tarn::nfe;
namespace reading = sefaz_sim::xml_reading;

// What the QR code tells of how it was made.
struct qrcode_parts {
    std::string page;
    nfe::versao_qrcode version = nfe::versao_qrcode::versao_200;
    std::string token;
};

bool digits_at(std::string const& text, std::size_t at, std::size_t count)
{
    if (at + count > text.size()) {
        return false;
    }
    for (std::size_t i = at; i < at + count; ++i) {
        if (text[i] < '0' || text[i] > '9') {
            return false;
        }
    }
    return true;
}

std::vector<std::string> split(std::string const& text, char separator)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t at = text.find(separator); at != std::string::npos; at = text.find(separator, start)) {
        parts.push_back(text.substr(start, at - start));
        start = at + 1;
    }
    parts.push_back(text.substr(start));
    return parts;
}

// Version 2.00: page + "p=" + key|2|tpAmb|token|hash online, or
// key|2|tpAmb|day|vNF|digVal|token|hash offline. Version 1.00: page +
// "chNFe=" + key&nVersao=100&...&cIdToken=token&cHashQRCode=hash.
std::optional<qrcode_parts> parts_of(std::string const& qrcode)
{
    for (std::size_t at = qrcode.find("p="); at != std::string::npos; at = qrcode.find("p=", at + 1)) {
        if (digits_at(qrcode, at + 2, 44) && qrcode.compare(at + 46, 3, "|2|") == 0) {
            std::vector<std::string> const fields = split(qrcode.substr(at + 2), '|');
            if (fields.size() == 5 || fields.size() == 8) {
                return qrcode_parts{qrcode.substr(0, at), nfe::versao_qrcode::versao_200, fields[fields.size() - 2]};
            }
        }
    }
    std::size_t const key = qrcode.find("chNFe=");
    std::size_t const token = qrcode.find("&cIdToken=");
    if (key != std::string::npos && digits_at(qrcode, key + 6, 44) && token != std::string::npos) {
        std::size_t const end = qrcode.find('&', token + 1);
        return qrcode_parts{qrcode.substr(0, key), nfe::versao_qrcode::versao_100,
                            qrcode.substr(token + 10, end == std::string::npos ? std::string::npos : end - token - 10)};
    }
    return std::nullopt;
}

// The NFe element as text, without its qrCode.
std::string without_qrcode(xmlNode const* nfe)
{
    std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> const own(xmlNewDoc(reinterpret_cast<xmlChar const*>("1.0")),
                                                         &xmlFreeDoc);
    xmlNode* const copy = xmlDocCopyNode(const_cast<xmlNode*>(nfe), own.get(), 1);
    if (copy == nullptr) {
        return std::string();
    }
    xmlDocSetRootElement(own.get(), copy);
    if (xmlNode* const qrcode = reading::descendant(copy, {"infNFeSupl", "qrCode"})) {
        xmlUnlinkNode(qrcode);
        xmlFreeNode(qrcode);
    }
    return reading::element_text(copy);
}

}  // namespace

finding qrcode_check::run(xmlNode const* nfe, std::optional<std::string> const& csc)
{
    finding result{"qrcode", finding::result::ok, ""};
    std::string const qrcode = reading::text_at(nfe, {"infNFeSupl", "qrCode"});
    if (qrcode.empty()) {
        return {"qrcode", finding::result::failed, "a NFC-e não tem QR code (infNFeSupl/qrCode)"};
    }
    if (!csc) {
        return {"qrcode", finding::result::skipped, "informe o CSC (--csc-arquivo ou TARN_CSC) para conferir o hash"};
    }
    std::optional<qrcode_parts> const parts = parts_of(qrcode);
    if (!parts) {
        return {"qrcode", finding::result::failed, "o QR code não tem a forma da versão 1.00 nem da 2.00"};
    }
    core::result::stack stack;
    xml::document document;
    document.load(core::byte_array(without_qrcode(nfe)), stack);
    std::string const expected =
        stack.has_failed()
            ? std::string()
            : nfe::obter_url_qrcode(nfe::informacoes_adicionais(parts->version, std::nullopt, parts->page), document,
                                    parts->token, *csc, stack);
    if (stack.has_failed()) {
        return {"qrcode", finding::result::failed,
                std::string("o QR code não pôde ser refeito: ") + stack.top().get_message()};
    }
    if (expected != qrcode) {
        return {"qrcode", finding::result::failed, "o hash não confere com o CSC (token " + parts->token + ")"};
    }
    result.detail = std::string("hash confere com o CSC (versão ") +
                    (parts->version == nfe::versao_qrcode::versao_200 ? "2.00" : "1.00") + ", token " + parts->token +
                    ")";
    return result;
}

}  // namespace velk::tools::tarn
