#pragma once

// Signed documents of the test notes, as a batch carries them: what the
// tests of the batch, the services and the exchanges with the simulator share.

#include <support/notas_fiscais.hpp>
#include <support/partes_de_notas.hpp>
#include <support/test_certificates.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <gtest/gtest.h>

#include <string>

namespace velk::test {

// The note's document of layout 4.00, with its QR code when it is an NFC-e
// (version 2.00, the pages of São Paulo), signed by the test taxpayer.
inline erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal documento_assinado(
    erp::fiscal::nota_fiscal const& nota)
{
    namespace nfe = erp::tarn::nfe;
    core::result::stack stack;
    auto documento =
        nfe::sefaz_data::requisicao::documento_fiscal::from_nota_fiscal(nota, nfe::versao::versao_4_00, stack);
    if (documento.get_modelo() == erp::tarn::modelo::nfce) {
        nfe::informacoes_adicionais const qr(nfe::versao_qrcode::versao_200,
                                             std::string("www.fazenda.sp.gov.br/nfce/consulta"),
                                             "https://www.homologacao.nfce.fazenda.sp.gov.br/qrcode?");
        documento.gerar_qrcode(qr, "000001", "CSC0TESTE0000000000000000000000000000", stack);
        documento.adicionar_url_chave(qr);
    }
    documento.assinar(taxpayer_pkcs12(), stack);
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
    return documento;
}

}  // namespace velk::test
