// Each refusal of generate_document_4_00 as a table: a change to a valid note,
// the code on top of the stack with its argument "value", the items beneath
// it, and an empty document.

#include "notas_json_teste.hpp"

#include <velk/erp/tarn/nfe/processar_nota_result_category.hpp>
#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace {

namespace serialization = velk::internal::nfe::serialization;
using velk::test::NotaFiscal;

struct recusa {
    char const* caso;
    std::function<void(NotaFiscal&)> alterar;
    int codigo;
    char const* valor;                    // null: no argument
    std::vector<std::string> abaixo = {}; // categories of the items beneath, from the bottom
};

void PrintTo(recusa const& caso, std::ostream* saida)
{
    *saida << caso.caso;
}

// protobuf's two sentinels of every enumeration, and a number of none.
template <class Enumeracao>
Enumeracao maior()
{
    return static_cast<Enumeracao>(INT_MAX);
}
template <class Enumeracao>
Enumeracao menor()
{
    return static_cast<Enumeracao>(INT_MIN);
}
template <class Enumeracao>
Enumeracao numero(int valor)
{
    return static_cast<Enumeracao>(valor);
}

serialization::Produto& azeite(NotaFiscal& nota)
{
    return *nota.mutable_produtos(0);
}

serialization::DetalhesPagamento& cartao(NotaFiscal& nota)
{
    return *nota.mutable_informacoes_pagamento()->mutable_detalhes_pagamento(0);
}

serialization::GrupoTributacaoICMS102& simples(NotaFiscal& nota)
{
    return *azeite(nota).mutable_grupo_icms_10();
}

std::string const maior_texto = std::to_string(INT_MAX);
std::string const menor_texto = std::to_string(static_cast<unsigned int>(INT_MIN));

std::vector<recusa> const recusas = {
    // ide
    {"modelo_sem_numero", [](NotaFiscal& n) { n.set_modelo_emissao(""); }, 71, ""},
    {"modelo_alem_de_32_bits", [](NotaFiscal& n) { n.set_modelo_emissao("2147483648"); }, 71, "2147483648"},
    {"serie_sem_numero", [](NotaFiscal& n) { n.set_serie("A"); }, 72, "A"},
    {"tipo_operacao", [](NotaFiscal& n) { n.set_tipo_operacao(maior<NotaFiscal::TipoOperacao>()); }, 22,
     maior_texto.c_str()},
    {"destino_operacao", [](NotaFiscal& n) { n.set_indicador_operacao(menor<NotaFiscal::IdDestino>()); }, 23,
     menor_texto.c_str()},
    {"tipo_emissao", [](NotaFiscal& n) { n.set_tipo_emissao(maior<NotaFiscal::TipoDeEmissao>()); }, 45,
     maior_texto.c_str()},
    {"chave_de_43", [](NotaFiscal& n) { n.set_chave_acesso(n.chave_acesso().substr(0, 43)); }, 58,
     "3324066130528400011965001000120388127364519"},
    {"ambiente", [](NotaFiscal& n) { n.set_indicador_ambiente(maior<NotaFiscal::IdAmbiente>()); }, 16,
     maior_texto.c_str()},
    {"finalidade", [](NotaFiscal& n) { n.set_indicador_finalidade_emissao(menor<NotaFiscal::FinalidadeEmissao>()); },
     64, menor_texto.c_str()},
    {"consumidor_final",
     [](NotaFiscal& n) { n.set_operacao_para_consumidor_final(maior<NotaFiscal::ConsumidorFinal>()); }, 17,
     maior_texto.c_str()},
    {"presenca", [](NotaFiscal& n) { n.set_indicador_presenca(maior<NotaFiscal::IndicadorPresenca>()); }, 18,
     maior_texto.c_str()},
    {"intermediador",
     [](NotaFiscal& n) { n.set_indicador_intermediador(maior<NotaFiscal::IndicadorIntermediador>()); }, 78,
     maior_texto.c_str()},
    // parties
    {"cnpj_emitente_com_pontos", [](NotaFiscal& n) { n.mutable_emitente()->mutable_cnpj()->set_value("61.305.284/0001-19"); },
     59, "61.305.284/0001-19", {"core-converter"}},
    {"telefone_emitente",
     [](NotaFiscal& n) { n.mutable_emitente()->mutable_telefone()->set_value("(21) 2264-8800"); }, 73,
     "(21) 2264-8800", {"core-converter"}},
    {"regime", [](NotaFiscal& n) { n.mutable_emitente()->set_regime_fiscal(maior<serialization::Emitente::RegimeTributario>()); },
     21, maior_texto.c_str()},
    {"cnpj_destinatario", [](NotaFiscal& n) { n.mutable_destinatario()->mutable_cnpj()->set_value("x"); }, 6, "x",
     {"core-converter"}},
    // The refusal of a CPF names the CNPJ's text, empty here.
    {"cpf_destinatario", [](NotaFiscal& n) { n.mutable_destinatario()->mutable_cpf()->set_value("519.267.834-09"); }, 7,
     "", {"core-converter"}},
    {"destinatario_sem_documento", [](NotaFiscal& n) { n.mutable_destinatario()->clear_cpf(); }, 9, nullptr},
    {"telefone_destinatario",
     [](NotaFiscal& n) {
         n.mutable_destinatario()->mutable_endereco();
         n.mutable_destinatario()->mutable_telefone()->set_value("sem");
     },
     60, "sem"},
    {"indicador_ie",
     [](NotaFiscal& n) {
         n.mutable_destinatario()->set_indicador_ie(menor<serialization::Destinatario::IndicadorInscricaoEstadual>());
     },
     24, menor_texto.c_str()},
    // ICMS
    {"sem_icms", [](NotaFiscal& n) { azeite(n).clear_grupo_icms_00(); }, 79, nullptr},
    {"issqn", [](NotaFiscal& n) { azeite(n).mutable_issqn(); }, 80, nullptr},
    {"origem", [](NotaFiscal& n) { azeite(n).mutable_grupo_icms_00()->set_origem_mercadoria(maior<serialization::OrigemMercadoria>()); },
     28, maior_texto.c_str()},
    {"cst", [](NotaFiscal& n) { azeite(n).mutable_grupo_icms_00()->set_cst(menor<serialization::Cst>()); }, 32,
     menor_texto.c_str()},
    // A CST its group does not admit: the schema would refuse ICMS00 with CST 10.
    {"cst_de_outro_grupo", [](NotaFiscal& n) { azeite(n).mutable_grupo_icms_00()->set_cst(serialization::Cst10); }, 32,
     "1"},
    {"csosn", [](NotaFiscal& n) { simples(n).set_csosn(maior<serialization::Csosn>()); }, 31, maior_texto.c_str()},
    {"csosn_de_outro_grupo", [](NotaFiscal& n) { simples(n).set_csosn(serialization::Csosn101); }, 31, "0"},
    {"modalidade_bc",
     [](NotaFiscal& n) {
         azeite(n).mutable_grupo_icms_00()->set_modalidade_bc_icms(maior<serialization::ModalidadeBCICMS::Enum>());
     },
     29, maior_texto.c_str()},
    {"modalidade_bc_st",
     [](NotaFiscal& n) {
         auto& g = *azeite(n).mutable_grupo_icms_03();
         g.set_cst(serialization::Cst30);
         g.set_modalidade_bc_icms_st(menor<serialization::ModalidadeBCICMSST::Enum>());
     },
     30, menor_texto.c_str()},
    // PIS and COFINS
    {"cst_pis_aliquota",
     [](NotaFiscal& n) {
         azeite(n).mutable_tributacao_pis_cofins()->mutable_grupo_pis_00()->set_cst(maior<serialization::CSTPISAliquota>());
     },
     33, maior_texto.c_str()},
    // The layout has no PIS CST 00: a number beyond the enumeration is refused.
    {"cst_pis_aliquota_fora_da_tabela",
     [](NotaFiscal& n) {
         azeite(n).mutable_tributacao_pis_cofins()->mutable_grupo_pis_00()->set_cst(numero<serialization::CSTPISAliquota>(7));
     },
     33, "7"},
    {"cst_pis_nao_tributado",
     [](NotaFiscal& n) { azeite(n).mutable_tributacao_pis_cofins()->mutable_grupo_pis_01()->set_cst(maior<serialization::CSTPISNT>()); },
     34, maior_texto.c_str()},
    {"cst_pis_outras",
     [](NotaFiscal& n) {
         azeite(n).mutable_tributacao_pis_cofins()->mutable_grupo_pis_02()->set_cst(
             maior<serialization::CSTPISOutrasOperacoes>());
     },
     35, maior_texto.c_str()},
    {"cst_cofins_aliquota",
     [](NotaFiscal& n) {
         azeite(n).mutable_tributacao_pis_cofins()->mutable_grupo_cofins_00()->set_cst(menor<serialization::CSTCofinsAliquota>());
     },
     36, menor_texto.c_str()},
    {"cst_cofins_nao_tributado",
     [](NotaFiscal& n) {
         azeite(n).mutable_tributacao_pis_cofins()->mutable_grupo_cofins_01()->set_cst(maior<serialization::CSTCofinsNT>());
     },
     37, maior_texto.c_str()},
    {"cst_cofins_outras",
     [](NotaFiscal& n) {
         azeite(n).mutable_tributacao_pis_cofins()->mutable_grupo_cofins_02()->set_cst(
             menor<serialization::CSTCofinsOutrasOperacoes>());
     },
     38, menor_texto.c_str()},
    // transport
    {"modalidade_frete",
     [](NotaFiscal& n) {
         n.mutable_informacoes_transporte()->set_modalidade(maior<serialization::InformacoesTransporte::ModalidadeFrete>());
     },
     44, maior_texto.c_str()},
    {"cnpj_transportador",
     [](NotaFiscal& n) {
         n.mutable_informacoes_transporte()->mutable_grupo_transportador()->mutable_cnpj()->set_value("38.061.794/0001-76");
     },
     13, "38.061.794/0001-76", {"core-converter"}},
    {"cpf_transportador",
     [](NotaFiscal& n) {
         n.mutable_informacoes_transporte()->mutable_grupo_transportador()->mutable_cpf()->set_value("384.172.956-82");
     },
     14, "384.172.956-82", {"core-converter"}},
    // payment
    {"forma_pagamento",
     [](NotaFiscal& n) {
         cartao(n).set_indicador_forma_pagamento(maior<serialization::DetalhesPagamento::IndicadorFormaPagamento>());
     },
     39, maior_texto.c_str()},
    {"meio_pagamento",
     [](NotaFiscal& n) { cartao(n).set_meio_pagamento(menor<serialization::DetalhesPagamento::MeioDePagamento>()); }, 40,
     menor_texto.c_str()},
    // The layout has no tPag 0: a number beyond the enumeration is refused.
    {"meio_pagamento_fora_da_tabela",
     [](NotaFiscal& n) { cartao(n).set_meio_pagamento(numero<serialization::DetalhesPagamento::MeioDePagamento>(17)); },
     40, "17"},
    {"tipo_integracao",
     [](NotaFiscal& n) {
         cartao(n).mutable_informacoes_cartao()->set_tipo_integracao(maior<serialization::TransacaoTEF::TipoIntegracao>());
     },
     41, maior_texto.c_str()},
    {"bandeira",
     [](NotaFiscal& n) { cartao(n).mutable_informacoes_cartao()->set_bandeira(numero<serialization::TransacaoTEF::Bandeira>(28)); },
     42, "28"},
    // additional information
    {"origem_processo",
     [](NotaFiscal& n) {
         n.mutable_informacoes_adicionais()->add_grupo_processo_referenciado()->set_indicador_origem(
             numero<serialization::GrupoProcessoReferenciado::IndicadorOrigem>(5));
     },
     77, "5"},
};

class recusas_json : public testing::TestWithParam<recusa> {};

TEST_P(recusas_json, the_code_is_on_top_and_the_document_is_empty)
{
    recusa const& caso = GetParam();
    NotaFiscal nota = velk::test::nota_json("nfce_rj_mercado");
    if (std::string(caso.caso).rfind("csosn", 0) == 0) {
        azeite(nota).mutable_grupo_icms_10()->set_csosn(velk::internal::nfe::serialization::Csosn102);
    }
    caso.alterar(nota);
    velk::core::result::stack report;
    velk::xml::document const documento = velk::erp::tarn::nfe::protobuf::generate_document_4_00(nota, report);

    ASSERT_TRUE(report.has_failed());
    EXPECT_EQ(documento.get_root_element(), nullptr);
    ASSERT_EQ(report.size(), caso.abaixo.size() + 1) << report.to_string();
    auto const& topo = report.top();
    EXPECT_TRUE(topo.get_category() == velk::erp::tarn::nfe::processar_nota_result_category::instance());
    EXPECT_EQ(topo.get_value(), caso.codigo);
    if (caso.valor == nullptr) {
        EXPECT_TRUE(topo.get_arguments().empty());
    } else {
        ASSERT_EQ(topo.get_arguments().size(), 1u);
        EXPECT_EQ(topo.get_arguments()[0].first, "value");
        EXPECT_EQ(topo.get_arguments()[0].second, caso.valor);
    }
    for (std::size_t posicao = 0; posicao < caso.abaixo.size(); ++posicao) {
        auto const& item = *(report.begin() + static_cast<std::ptrdiff_t>(posicao));
        EXPECT_EQ(item.get_category().get_name(), caso.abaixo[posicao]);
        EXPECT_EQ(item.get_value(), 2);
    }
}

INSTANTIATE_TEST_SUITE_P(casos, recusas_json, testing::ValuesIn(recusas),
                         [](testing::TestParamInfo<recusa> const& info) { return std::string(info.param.caso); });

}  // namespace
