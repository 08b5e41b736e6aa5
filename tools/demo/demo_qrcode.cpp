#include "demo_certificate.hpp"
#include "demo_notas.hpp"
#include "demo_steps.hpp"
#include "demo_xml.hpp"

#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/url_consulta_qrcode.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <string>

namespace velk::demo {

namespace {

using erp::tarn::nfe::informacoes_adicionais;
using erp::tarn::nfe::versao_qrcode;
using erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal;

struct nfce_demo {
    char const* nome;  // in file names
    erp::fiscal::nota_fiscal (*nota)();
    char const* uf;
    // The state's page for a consultation by access key, printed on the
    // receipt beside the QR code; the caller always gives it.
    char const* url_chave;
    char const* descricao;
};

nfce_demo const notas[] = {
    {"online", demo_nfce, "SP", "https://www.homologacao.nfce.fazenda.sp.gov.br/consulta",
     "NFC-e of a shop in São Paulo sent at once"},
    {"contingencia", demo_nfce_contingencia, "SP", "https://www.homologacao.nfce.fazenda.sp.gov.br/consulta",
     "The same sale issued in offline contingency (tpEmis 9), the consumer named by CPF"},
};

struct versao_demo {
    versao_qrcode versao;
    char const* nome;
    char const* texto;
};

versao_demo const versoes[] = {
    {versao_qrcode::versao_100, "qr100", "1.00"},
    {versao_qrcode::versao_200, "qr200", "2.00"},
};

}  // namespace

void run_qrcode_step(demo_context& context)
{
    demo_context::say("QR code step: NFC-e generated from fiscal models, given their QR code and urlChave, signed");
    context.set_qrcode_secret(demo_id_token, demo_csc);

    core::result::stack stack;
    cryptography::pkcs12 const certificate = make_demo_certificate(stack);
    check(stack, "certificate");

    for (nfce_demo const& nfce : notas) {
        for (versao_demo const& versao : versoes) {
            documento_fiscal document =
                documento_fiscal::from_nota_fiscal(nfce.nota(), erp::tarn::nfe::versao::versao_4_00, stack);
            check(stack, "NFC-e from its note");
            // The state's consultation page, from the library's own table.
            std::string const pagina = erp::tarn::nfe::detail::obter_url_consulta_qrcode(document, stack);
            check(stack, "consultation page");

            informacoes_adicionais const informacoes(versao.versao, std::string(nfce.url_chave), pagina);
            document.gerar_qrcode(informacoes, demo_id_token, demo_csc, stack);
            check(stack, "QR code");
            document.adicionar_url_chave(informacoes);
            std::string const digest = document.get_digest_value();
            document.assinar(certificate, stack);
            check(stack, "signature");
            if (document.get_digest_value() != digest) {
                throw demo_failure{"the QR code holds another digest than the signature"};
            }
            std::string const url = *document.get_qrcode_value();
            demo_context::say(std::string("  QR code ") + versao.texto + " (" + nfce.nome + ", " + nfce.uf +
                              "): " + url);
            context.write({std::string("qrcode/nfce-") + nfce.nome + "-" + versao.nome + ".xml", "NFe", "4.00", "65",
                           nfce.uf, true,
                           std::string(nfce.descricao) + ", QR code " + versao.texto + ": " + url},
                          to_text(document.get_xml(), "signed NFC-e"));
        }
    }
}

}  // namespace velk::demo
