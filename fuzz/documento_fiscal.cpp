// fuzz-dictionary: xml
// An NF-e or NFC-e as a caller hands it in: read, then every value the rest of
// the system takes from it, the digest the QR code and the signature use.

#include "fuzz_input.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    using namespace velk;
    using erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal;
    std::optional<xml::document> const document = fuzz::load(data, size);
    if (!document) {
        return 0;
    }
    core::result::stack stack;
    documento_fiscal const lido = documento_fiscal::from_xml(*document, stack);
    if (stack.has_failed()) {
        return 0;
    }
    (void)lido.get_chave_acesso();
    (void)lido.get_data_hora_emissao();
    (void)lido.get_qrcode_value();
    (void)lido.get_url_chave();
    (void)lido.get_email_destinatario();
    (void)lido.get_valor_total();
    (void)lido.get_identificador_destinatario();
    (void)lido.get_digest_value();
    (void)documento_fiscal(lido).get_xml();
    return 0;
}
