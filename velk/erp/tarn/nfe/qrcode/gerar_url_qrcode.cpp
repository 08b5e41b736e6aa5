#include <velk/erp/tarn/nfe/qrcode/gerar_url_qrcode.h>

#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>
#include <velk/erp/tarn/nfe/protobuf/nota_json.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/url_consulta_qrcode.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/url_qrcode.hpp>
#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <google/protobuf/arena.h>

#include <cstdio>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

using serialization_nota = ::velk::internal::nfe::serialization::NotaFiscal;
using sefaz_data::requisicao::documento_fiscal;

// The document of the note in the layout asked for. A refused note gives an
// empty document, which cannot be saved: its reason stays here, as no text
// reaches a C caller.
xml::document gerar_documento(serialization_nota const& nota, bool layout_4_00)
{
    core::result::stack stack;
    xml::document documento =
        layout_4_00 ? protobuf::generate_document_4_00(nota, stack) : protobuf::generate_document_3_10(nota, stack);
    return stack.has_failed() ? xml::document() : documento;
}

// From the first "<infNFe" to the end of the last "</infNFe>": the element
// that the caller signs, without the declaration and the NFe around it.
std::string_view trecho_infnfe(std::string_view texto)
{
    constexpr std::string_view abertura = "<infNFe";
    constexpr std::string_view fechamento = "</infNFe>";
    std::size_t const inicio = texto.find(abertura);
    std::size_t const fim = texto.rfind(fechamento);
    if (inicio == std::string_view::npos || fim == std::string_view::npos || fim < inicio) {
        return {};
    }
    return texto.substr(inicio, fim + fechamento.size() - inicio);
}

// Writes the infNFe text of the document to the file, replacing what it
// held. False when the document cannot be saved to bytes or the file cannot
// be opened; a failed write or close is not looked at.
bool escrever_infnfe(xml::document const& documento, char const* arquivo)
{
    core::result::stack stack;
    core::byte_array const bytes = xml::document::save(documento, stack);
    if (stack.has_failed() || arquivo == nullptr) {
        return false;
    }
    std::FILE* const saida = std::fopen(arquivo, "wb");
    if (saida == nullptr) {
        return false;
    }
    std::string_view const trecho = trecho_infnfe(bytes.view());
    std::fwrite(trecho.data(), 1, trecho.size(), saida);
    std::fclose(saida);
    return true;
}

// The consultation page of the document's state and environment followed by
// the QR string, or false when either cannot be made.
bool endereco_qrcode(xml::document&& documento, std::string const& id_token, std::string const& csc,
                     versao_qrcode versao, std::string& endereco)
{
    core::result::stack stack;
    documento_fiscal const fiscal = documento_fiscal::from_xml(std::move(documento), stack);
    if (stack.has_failed()) {
        return false;
    }
    // A document that carries its QR code already gives it as it stands. One
    // generated here never does; this keeps the rule of the class interface.
    if (core::optional<std::string> existente = fiscal.get_qrcode_value(); existente.has_value()) {
        endereco = std::move(existente).value();
        return true;
    }
    std::string pagina = detail::obter_url_consulta_qrcode(fiscal, stack);
    if (stack.has_failed()) {
        return false;
    }
    informacoes_adicionais const informacoes(versao, core::optional<std::string>(), std::move(pagina));
    endereco = detail::url_qrcode(informacoes, fiscal, id_token, csc, stack);
    return !stack.has_failed();
}

// The address by the C idiom of two calls. With a buffer: the text with its
// terminator when it fits, and its length without the terminator; else the
// size needed with the terminator. Without a buffer: that size, clamped to
// what 32 bits hold.
std::int32_t entregar(std::string const& endereco, char* url, std::uint32_t& tamanho_url)
{
    std::size_t const necessario = endereco.size() + 1;
    std::size_t const maximo = std::numeric_limits<std::uint32_t>::max();
    if (url != nullptr && tamanho_url >= necessario) {
        std::memcpy(url, endereco.c_str(), necessario);
        tamanho_url = static_cast<std::uint32_t>(endereco.size());
        return VELKERP_TARN_NFE_SUCESSO;
    }
    tamanho_url = static_cast<std::uint32_t>(necessario < maximo ? necessario : maximo);
    return url != nullptr ? VELKERP_TARN_NFE_BUFFER_PEQUENO : VELKERP_TARN_NFE_SUCESSO;
}

// The one operation behind both functions, given the token's text, the QR
// version and the layout. No exception leaves it: should one arise (memory
// exhausted), the step it stopped reports its own failure.
std::int32_t gerar_url_qrcode(char const* nota_json, std::string const& id_token, char const* csc, char* url,
                              std::uint32_t* tamanho_url, char const* arquivo_infnfe, versao_qrcode versao,
                              bool layout_4_00)
{
    if (nota_json == nullptr || id_token.empty() || csc == nullptr || tamanho_url == nullptr) {
        return VELKERP_TARN_NFE_ARGUMENTO_AUSENTE;
    }
    std::int32_t falha = VELKERP_TARN_NFE_JSON_INVALIDO;
    try {
        // The note and its parts taken from one arena: the dozens of small
        // messages of a note go away together when the call ends.
        google::protobuf::Arena arena;
        serialization_nota& nota = *google::protobuf::Arena::CreateMessage<serialization_nota>(&arena);
        core::result::stack stack;
        if (!protobuf::ler_nota_json(nota_json, nota, stack)) {
            return VELKERP_TARN_NFE_JSON_INVALIDO;
        }
        falha = VELKERP_TARN_NFE_ARQUIVO_NAO_ESCRITO;
        xml::document documento = gerar_documento(nota, layout_4_00);
        if (!escrever_infnfe(documento, arquivo_infnfe)) {
            return VELKERP_TARN_NFE_ARQUIVO_NAO_ESCRITO;
        }
        falha = VELKERP_TARN_NFE_QRCODE_FALHOU;
        std::string endereco;
        if (!endereco_qrcode(std::move(documento), id_token, csc, versao, endereco)) {
            return VELKERP_TARN_NFE_QRCODE_FALHOU;
        }
        return entregar(endereco, url, *tamanho_url);
    } catch (...) {
        return falha;
    }
}

// Layout numbers of the C interface.
constexpr std::int32_t codigo_layout_3_10 = 1;
constexpr std::int32_t codigo_layout_4_00 = 2;

}  // namespace

}  // namespace velk::erp::inline v4::tarn::nfe

extern "C" {

std::int32_t velkerp_tarn_nfe_gerar_url_qrcode_v1(char const* nota_json, char const* id_token, char const* csc,
                                                  char* url, std::uint32_t* tamanho_url, char const* arquivo_infnfe,
                                                  std::int32_t versao_layout)
{
    namespace nfe = velk::erp::tarn::nfe;
    // A null token is a breach of the contract; it is answered as a missing
    // argument, which is what a C caller can act on.
    if (id_token == nullptr ||
        (versao_layout != nfe::codigo_layout_3_10 && versao_layout != nfe::codigo_layout_4_00)) {
        return VELKERP_TARN_NFE_ARGUMENTO_AUSENTE;
    }
    try {
        return nfe::gerar_url_qrcode(nota_json, id_token, csc, url, tamanho_url, arquivo_infnfe,
                                     nfe::versao_qrcode::versao_100, versao_layout == nfe::codigo_layout_4_00);
    } catch (...) {
        // Only the token's copy can throw here, when memory is exhausted.
        return VELKERP_TARN_NFE_ARGUMENTO_AUSENTE;
    }
}

std::int32_t velkerp_tarn_nfe_gerar_url_qrcode_v2(char const* nota_json, std::int32_t id_token, char const* csc,
                                                  char* url, std::uint32_t* tamanho_url, char const* arquivo_infnfe,
                                                  std::int32_t versao_layout)
{
    namespace nfe = velk::erp::tarn::nfe;
    if (versao_layout != nfe::codigo_layout_4_00) {
        return VELKERP_TARN_NFE_ARGUMENTO_AUSENTE;
    }
    try {
        // Decimal, "-" in front of a negative number, no zeros in front.
        return nfe::gerar_url_qrcode(nota_json, std::to_string(id_token), csc, url, tamanho_url, arquivo_infnfe,
                                     nfe::versao_qrcode::versao_200, true);
    } catch (...) {
        return VELKERP_TARN_NFE_ARGUMENTO_AUSENTE;
    }
}

}  // extern "C"
