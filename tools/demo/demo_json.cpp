#include "demo_certificate.hpp"
#include "demo_notas.hpp"
#include "demo_steps.hpp"
#include "demo_xml.hpp"

#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>
#include <velk/erp/tarn/nfe/protobuf/nota_json.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/url_consulta_qrcode.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <fstream>
#include <sstream>
#include <string>

namespace velk::demo {

namespace {

// The demo's NFC-e as a point of sale in another language sends it: a
// NotaFiscal in protobuf's JSON, every value stated, totals included.
constexpr char nota_json[] = R"({
  "modelo_emissao": "65", "serie": "1", "numero": 3,
  "chave_acesso": "35240912345678000195650010000000031102938497", "codigo_nf": 10293849,
  "data_emissao": {"date": {"day": 16, "month": 9, "year": 2024}, "time": {"hour": 11, "minute": 5}, "offset": -180},
  "ibge_uf_emissao": 35, "ibge_municipio_emissao": 3550308, "natureza_operacao": "VENDA DE MERCADORIA",
  "tipo_operacao": "Saida", "indicador_operacao": "OperacaoInterna", "operacao_para_consumidor_final": "Sim",
  "indicador_presenca": "OperacaoPresencial", "indicador_ambiente": "Homologacao", "tipo_emissao": "EmissaoNormal",
  "indicador_finalidade_emissao": "NFeNormal", "indicador_intermediador": "OperacaoSemIntermediador",
  "emitente": {
    "cnpj": "12345678000195", "razao_social": "EMPRESA DEMONSTRACAO LTDA", "nome_fantasia": "Loja Demonstração",
    "endereco": {"logadouro": "Rua dos Pinheiros", "numero": "870", "bairro": "Pinheiros", "ibge_municipio": 3550308,
                 "nome_municipio": "São Paulo", "uf": "SP", "cep": 5422001, "ibge_pais": 1058, "pais": "Brasil"},
    "telefone": "1130321234", "inscricao_estadual": "135792465809", "regime_fiscal": "Normal"
  },
  "produtos": [
    {"codigo_produto": "CH-110", "codigo_barras": "7891234567895", "descricao": "CHALEIRA ELETRICA INOX 1,7L",
     "ncm": 85161000, "cfop": 5102, "unidade_comercial": "UN", "quantidade_comercial": {"numero": "2"},
     "valor_unitario_comercial": {"numero": "2490", "casas_decimais": 2},
     "valor_total_bruto": {"numero": "4980", "casas_decimais": 2}, "codigo_barras_tributavel": "7891234567895",
     "unidade_tributavel": "UN", "quantidade_tributavel": {"numero": "2"},
     "valor_unitario_tributavel": {"numero": "2490", "casas_decimais": 2}, "indicador_item_compoe_total": "Compoe",
     "valor_total_tributos": {"numero": "1643", "casas_decimais": 2},
     "grupo_icms_00": {"origem_mercadoria": "Nacional_0", "cst": "Cst00", "modalidade_bc_icms": "ValorOperacao",
                       "valor_bc_icms": {"numero": "4980", "casas_decimais": 2},
                       "aliquota_icms": {"numero": "1800", "casas_decimais": 2},
                       "valor_icms": {"numero": "896", "casas_decimais": 2}},
     "tributacao_pis_cofins": {
       "grupo_pis_00": {"cst": "CSTPIS01", "valor_bc": {"numero": "4980", "casas_decimais": 2},
                        "percentual_aliquota": {"numero": "165", "casas_decimais": 2},
                        "valor": {"numero": "82", "casas_decimais": 2}},
       "grupo_cofins_00": {"cst": "CSTCofins01", "valor_bc": {"numero": "4980", "casas_decimais": 2},
                           "percentual_aliquota": {"numero": "760", "casas_decimais": 2},
                           "valor": {"numero": "378", "casas_decimais": 2}}}},
    {"codigo_produto": "PL-AA4", "codigo_barras": "SEM GTIN", "descricao": "PILHA ALCALINA AA CARTELA C/4",
     "ncm": 85061019, "cest": 1000100, "cfop": 5405, "unidade_comercial": "UN", "quantidade_comercial": {"numero": "1"},
     "valor_unitario_comercial": {"numero": "1500", "casas_decimais": 2},
     "valor_total_bruto": {"numero": "1500", "casas_decimais": 2}, "codigo_barras_tributavel": "SEM GTIN",
     "unidade_tributavel": "UN", "quantidade_tributavel": {"numero": "1"},
     "valor_unitario_tributavel": {"numero": "1500", "casas_decimais": 2}, "indicador_item_compoe_total": "Compoe",
     "valor_total_tributos": {"numero": "495", "casas_decimais": 2},
     "grupo_icms_06": {"origem_mercadoria": "Nacional_0", "cst": "Cst60"},
     "tributacao_pis_cofins": {
       "grupo_pis_00": {"cst": "CSTPIS01", "valor_bc": {"numero": "1500", "casas_decimais": 2},
                        "percentual_aliquota": {"numero": "165", "casas_decimais": 2},
                        "valor": {"numero": "25", "casas_decimais": 2}},
       "grupo_cofins_00": {"cst": "CSTCofins01", "valor_bc": {"numero": "1500", "casas_decimais": 2},
                           "percentual_aliquota": {"numero": "760", "casas_decimais": 2},
                           "valor": {"numero": "114", "casas_decimais": 2}}}}
  ],
  "total": {"total_nfe_icms": {
    "base_normal": {"numero": "4980", "casas_decimais": 2}, "icms_normal": {"numero": "896", "casas_decimais": 2},
    "produtos": {"numero": "6480", "casas_decimais": 2}, "impostos_pis": {"numero": "107", "casas_decimais": 2},
    "impostos_cofins": {"numero": "492", "casas_decimais": 2}, "nota": {"numero": "6480", "casas_decimais": 2},
    "tributos_item": {"numero": "2138", "casas_decimais": 2}}},
  "informacoes_transporte": {"modalidade": "SemFrete"},
  "informacoes_pagamento": {
    "detalhes_pagamento": [
      {"meio_pagamento": "CartaoDebito", "valor_pagamento": {"numero": "4000", "casas_decimais": 2},
       "indicador_forma_pagamento": "PagamentoAVista",
       "informacoes_cartao": {"tipo_integracao": "Integrado", "cnpj": "66554433000105", "bandeira": "ELO",
                              "numero_autorizacao": "551208"}},
      {"meio_pagamento": "Dinheiro", "valor_pagamento": {"numero": "3000", "casas_decimais": 2}}],
    "valor_total_troco": {"numero": "520", "casas_decimais": 2}},
  "informacoes_adicionais": {"complementares": "Tributos aproximados: R$ 21,38 (Fonte: IBPT)."}
}
)";

std::string ler_arquivo(std::filesystem::path const& caminho)
{
    std::ifstream arquivo(caminho, std::ios::binary);
    std::ostringstream texto;
    texto << arquivo.rdbuf();
    return texto.str();
}

}  // namespace

void run_json_step(demo_context& context)
{
    demo_context::say("JSON step: an NFC-e issued from a note written as JSON, with its QR code 2.00, signed");
    context.write({"json/nfce-nota.json", "NotaFiscal-json", "", "65", "SP", false,
                   "The note of the NFC-e as protobuf's JSON, as a point of sale hands it over"},
                  nota_json);

    core::result::stack stack;
    ::velk::internal::nfe::serialization::NotaFiscal nota;
    erp::tarn::nfe::protobuf::ler_nota_json(ler_arquivo(context.out() / "json/nfce-nota.json"), nota, stack);
    check(stack, "note from its JSON");
    auto document = erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal::from_xml(
        erp::tarn::nfe::protobuf::generate_document_4_00(nota, stack), stack);
    check(stack, "NFC-e from its JSON note");

    std::string const pagina = erp::tarn::nfe::detail::obter_url_consulta_qrcode(document, stack);
    check(stack, "consultation page");
    erp::tarn::nfe::informacoes_adicionais const informacoes(
        erp::tarn::nfe::versao_qrcode::versao_200,
        std::string("https://www.homologacao.nfce.fazenda.sp.gov.br/consulta"), pagina);
    document.gerar_qrcode(informacoes, demo_id_token, demo_csc, stack);
    check(stack, "QR code");
    document.adicionar_url_chave(informacoes);
    cryptography::pkcs12 const certificate = make_demo_certificate(stack);
    check(stack, "certificate");
    document.assinar(certificate, stack);
    check(stack, "signature");
    demo_context::say("  QR code 2.00 (json, SP): " + *document.get_qrcode_value());
    context.write({"json/nfce-da-nota-json.xml", "NFe", "4.00", "65", "SP", true,
                   "The NFC-e of json/nfce-nota.json, QR code 2.00, signed"},
                  to_text(document.get_xml(), "signed NFC-e"));
}

}  // namespace velk::demo
