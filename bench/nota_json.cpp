// The whole road of a point of sale that speaks JSON: the note's text read,
// its document generated, the QR code made and the document signed, against
// one RSA-2048 signature alone. The aim is a road of at most 1.3 times the
// signature. The parts below show where it stands: the JSON text is read by
// our one-pass reader in about an eighth of a signature (protobuf's own reader
// took about one); the rest is the generation, the QR code and the signing.
#include "throwaway_certificate.hpp"

#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>
#include <velk/erp/tarn/nfe/protobuf/nota_json.hpp>
#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <benchmark/benchmark.h>

#include <string>

namespace {

namespace serialization = velk::internal::nfe::serialization;
namespace nfe = velk::erp::tarn::nfe;

void decimal(serialization::Decimal* valor, unsigned long long numero, unsigned casas = 2)
{
    valor->set_numero(numero);
    valor->set_casas_decimais(casas);
}

// An NFC-e of São Paulo with five items of ICMS 18 %, PIS and COFINS by rate,
// paid by card and cash, as its JSON text.
std::string nfce_json()
{
    serialization::NotaFiscal nota;
    nota.set_modelo_emissao("65");
    nota.set_serie("1");
    nota.set_numero(3);
    nota.set_chave_acesso("35240912345678000195650010000000031102938497");
    nota.set_codigo_nf(10293849);
    nota.mutable_data_emissao()->mutable_date()->set_day(16);
    nota.mutable_data_emissao()->mutable_date()->set_month(9);
    nota.mutable_data_emissao()->mutable_date()->set_year(2024);
    nota.mutable_data_emissao()->mutable_time()->set_hour(11);
    nota.mutable_data_emissao()->set_offset(-180);
    nota.set_ibge_uf_emissao(35);
    nota.set_ibge_municipio_emissao(3550308);
    nota.set_natureza_operacao("VENDA DE MERCADORIA");
    nota.set_tipo_operacao(serialization::NotaFiscal::Saida);
    nota.set_operacao_para_consumidor_final(serialization::NotaFiscal::Sim);
    nota.set_indicador_presenca(serialization::NotaFiscal::OperacaoPresencial);
    nota.set_indicador_ambiente(serialization::NotaFiscal::Homologacao);
    auto& emitente = *nota.mutable_emitente();
    emitente.mutable_cnpj()->set_value("12345678000195");
    emitente.set_razao_social("EMPRESA DEMONSTRACAO LTDA");
    emitente.set_inscricao_estadual("135792465809");
    emitente.set_regime_fiscal(serialization::Emitente::Normal);
    auto& endereco = *emitente.mutable_endereco();
    endereco.set_logadouro("Rua dos Pinheiros");
    endereco.set_numero("870");
    endereco.set_bairro("Pinheiros");
    endereco.set_ibge_municipio(3550308);
    endereco.set_nome_municipio("São Paulo");
    endereco.set_uf("SP");
    endereco.mutable_cep()->set_value(5422001);
    for (int item = 1; item <= 5; ++item) {
        auto& produto = *nota.add_produtos();
        produto.set_codigo_produto("CH-11" + std::to_string(item));
        produto.set_codigo_barras("7891234567895");
        produto.set_descricao("CHALEIRA ELETRICA INOX 1,7L MODELO " + std::to_string(item));
        produto.set_ncm(85161000);
        produto.set_cfop(5102);
        produto.set_unidade_comercial("UN");
        decimal(produto.mutable_quantidade_comercial(), 1, 0);
        decimal(produto.mutable_valor_unitario_comercial(), 2490);
        decimal(produto.mutable_valor_total_bruto(), 2490);
        produto.set_codigo_barras_tributavel("7891234567895");
        produto.set_unidade_tributavel("UN");
        decimal(produto.mutable_quantidade_tributavel(), 1, 0);
        decimal(produto.mutable_valor_unitario_tributavel(), 2490);
        produto.set_indicador_item_compoe_total(serialization::Produto::Compoe);
        auto& icms = *produto.mutable_grupo_icms_00();
        icms.set_modalidade_bc_icms(serialization::ModalidadeBCICMS::ValorOperacao);
        decimal(icms.mutable_valor_bc_icms(), 2490);
        decimal(icms.mutable_aliquota_icms(), 1800);
        decimal(icms.mutable_valor_icms(), 448);
        auto& pis = *produto.mutable_tributacao_pis_cofins()->mutable_grupo_pis_00();
        decimal(pis.mutable_valor_bc(), 2490);
        decimal(pis.mutable_percentual_aliquota(), 165);
        decimal(pis.mutable_valor(), 41);
        auto& cofins = *produto.mutable_tributacao_pis_cofins()->mutable_grupo_cofins_00();
        decimal(cofins.mutable_valor_bc(), 2490);
        decimal(cofins.mutable_percentual_aliquota(), 760);
        decimal(cofins.mutable_valor(), 189);
    }
    auto& total = *nota.mutable_total()->mutable_total_nfe_icms();
    decimal(total.mutable_base_normal(), 12450);
    decimal(total.mutable_icms_normal(), 2240);
    decimal(total.mutable_produtos(), 12450);
    decimal(total.mutable_impostos_pis(), 205);
    decimal(total.mutable_impostos_cofins(), 945);
    decimal(total.mutable_nota(), 12450);
    nota.mutable_informacoes_transporte()->set_modalidade(serialization::InformacoesTransporte::SemFrete);
    auto& cartao = *nota.mutable_informacoes_pagamento()->add_detalhes_pagamento();
    cartao.set_meio_pagamento(serialization::DetalhesPagamento::CartaoDebito);
    decimal(cartao.mutable_valor_pagamento(), 10000);
    cartao.mutable_informacoes_cartao()->set_bandeira(serialization::TransacaoTEF::ELO);
    auto& dinheiro = *nota.mutable_informacoes_pagamento()->add_detalhes_pagamento();
    decimal(dinheiro.mutable_valor_pagamento(), 2450);
    velk::core::result::stack stack;
    return nfe::protobuf::escrever_nota_json(nota, stack);
}

void rsa_2048_signature(benchmark::State& state)
{
    velk::cryptography::evp_private_key const key = velk::bench::throwaway_certificate().get_evp_private_key();
    velk::core::byte_array const signed_info(std::string(900, 'x'));
    velk::core::result::stack stack;
    for (auto _ : state) {
        benchmark::DoNotOptimize(key.sign(velk::cryptography::cryptographic_hash::algorithm::sha1, signed_info, stack));
    }
}
BENCHMARK(rsa_2048_signature)->Unit(benchmark::kMicrosecond);

void json_to_signed_nfce(benchmark::State& state)
{
    std::string const texto = nfce_json();
    auto const& certificado = velk::bench::throwaway_certificate();
    nfe::informacoes_adicionais const informacoes(
        nfe::versao_qrcode::versao_200, std::string("https://www.homologacao.nfce.fazenda.sp.gov.br/consulta"),
        std::string("https://www.homologacao.nfce.fazenda.sp.gov.br/NFCeConsultaPublica/Paginas/ConsultaQRCode.aspx"));
    velk::core::result::stack stack;
    for (auto _ : state) {
        serialization::NotaFiscal nota;
        nfe::protobuf::ler_nota_json(texto, nota, stack);
        auto documento = nfe::sefaz_data::requisicao::documento_fiscal::from_xml(
            nfe::protobuf::generate_document_4_00(nota, stack), stack);
        documento.gerar_qrcode(informacoes, "000001", "D3M0C5C0-0000-4A1B-9C2D-5E6F7A8B9C0D", stack);
        documento.assinar(certificado, stack);
        benchmark::DoNotOptimize(documento);
    }
    if (stack.has_failed()) {
        state.SkipWithError(stack.to_string().c_str());
    }
    state.counters["json_bytes"] = static_cast<double>(texto.size());
}
BENCHMARK(json_to_signed_nfce)->Unit(benchmark::kMicrosecond);

// The parts of the road, to see where its time goes.
void json_read(benchmark::State& state)
{
    std::string const texto = nfce_json();
    velk::core::result::stack stack;
    for (auto _ : state) {
        serialization::NotaFiscal nota;
        benchmark::DoNotOptimize(nfe::protobuf::ler_nota_json(texto, nota, stack));
    }
}
BENCHMARK(json_read)->Unit(benchmark::kMicrosecond);

void json_to_document(benchmark::State& state)
{
    std::string const texto = nfce_json();
    velk::core::result::stack stack;
    for (auto _ : state) {
        serialization::NotaFiscal nota;
        nfe::protobuf::ler_nota_json(texto, nota, stack);
        benchmark::DoNotOptimize(nfe::sefaz_data::requisicao::documento_fiscal::from_xml(
            nfe::protobuf::generate_document_4_00(nota, stack), stack));
    }
}
BENCHMARK(json_to_document)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
