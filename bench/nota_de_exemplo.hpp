#pragma once

// The notes of the JSON road's measures, as their JSON text: an NFC-e of a
// point of sale in São Paulo (five items of ICMS 18 %, PIS and COFINS by rate,
// paid by card and cash) and a wholesale NF-e of the same shop with 100 items
// to a company of Campinas.

#include <velk/erp/tarn/nfe/protobuf/nota_json.hpp>
#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>

#include <string>

namespace velk::bench {

namespace serialization = velk::internal::nfe::serialization;

inline void decimal(serialization::Decimal* valor, unsigned long long numero, unsigned casas = 2)
{
    valor->set_numero(numero);
    valor->set_casas_decimais(casas);
}

// `itens` items of 24.90 each; model 65 (NFC-e) or 55 (NF-e, with its
// recipient).
inline serialization::NotaFiscal nota_de_exemplo(int itens, bool nfce)
{
    serialization::NotaFiscal nota;
    nota.set_modelo_emissao(nfce ? "65" : "55");
    nota.set_serie("1");
    nota.set_numero(nfce ? 3 : 2);
    nota.set_chave_acesso(nfce ? "35240912345678000195650010000000031102938497"
                               : "35240912345678000195550010000000021564738294");
    nota.set_codigo_nf(nfce ? 10293849 : 56473829);
    nota.mutable_data_emissao()->mutable_date()->set_day(16);
    nota.mutable_data_emissao()->mutable_date()->set_month(9);
    nota.mutable_data_emissao()->mutable_date()->set_year(2024);
    nota.mutable_data_emissao()->mutable_time()->set_hour(11);
    nota.mutable_data_emissao()->set_offset(-180);
    nota.set_ibge_uf_emissao(35);
    nota.set_ibge_municipio_emissao(3550308);
    nota.set_natureza_operacao("VENDA DE MERCADORIA");
    nota.set_tipo_operacao(serialization::NotaFiscal::Saida);
    nota.set_operacao_para_consumidor_final(nfce ? serialization::NotaFiscal::Sim : serialization::NotaFiscal::Nao);
    nota.set_indicador_presenca(nfce ? serialization::NotaFiscal::OperacaoPresencial
                                     : serialization::NotaFiscal::OperacaoNaoPresencial);
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
    if (!nfce) {
        auto& destinatario = *nota.mutable_destinatario();
        destinatario.mutable_cnpj()->set_value("66554433000105");
        destinatario.mutable_razao_social()->set_value("COMERCIO DE UTILIDADES CAMPINAS LTDA");
        destinatario.set_indicador_ie(serialization::Destinatario::ContribuinteIsento);
    }
    for (int item = 1; item <= itens; ++item) {
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
    unsigned long long const n = static_cast<unsigned long long>(itens);
    auto& total = *nota.mutable_total()->mutable_total_nfe_icms();
    decimal(total.mutable_base_normal(), 2490 * n);
    decimal(total.mutable_icms_normal(), 448 * n);
    decimal(total.mutable_produtos(), 2490 * n);
    decimal(total.mutable_impostos_pis(), 41 * n);
    decimal(total.mutable_impostos_cofins(), 189 * n);
    decimal(total.mutable_nota(), 2490 * n);
    nota.mutable_informacoes_transporte()->set_modalidade(serialization::InformacoesTransporte::SemFrete);
    if (nfce) {
        auto& cartao = *nota.mutable_informacoes_pagamento()->add_detalhes_pagamento();
        cartao.set_meio_pagamento(serialization::DetalhesPagamento::CartaoDebito);
        decimal(cartao.mutable_valor_pagamento(), 10000);
        cartao.mutable_informacoes_cartao()->set_bandeira(serialization::TransacaoTEF::ELO);
    }
    auto& dinheiro = *nota.mutable_informacoes_pagamento()->add_detalhes_pagamento();
    decimal(dinheiro.mutable_valor_pagamento(), nfce ? 2490 * n - 10000 : 2490 * n);
    return nota;
}

inline std::string nota_json_de_exemplo(int itens, bool nfce)
{
    velk::core::result::stack stack;
    return erp::tarn::nfe::protobuf::escrever_nota_json(nota_de_exemplo(itens, nfce), stack);
}

// The pages of the QR code of São Paulo's test environment, version 2.00.
inline erp::tarn::nfe::informacoes_adicionais const& informacoes_qrcode()
{
    static erp::tarn::nfe::informacoes_adicionais const informacoes(
        erp::tarn::nfe::versao_qrcode::versao_200,
        std::string("https://www.homologacao.nfce.fazenda.sp.gov.br/consulta"),
        std::string("https://www.homologacao.nfce.fazenda.sp.gov.br/NFCeConsultaPublica/Paginas/ConsultaQRCode.aspx"));
    return informacoes;
}

constexpr char id_token[] = "000001";
constexpr char csc[] = "D3M0C5C0-0000-4A1B-9C2D-5E6F7A8B9C0D";

}  // namespace velk::bench
