// What a value of the model becomes in the document: codes of the
// enumerations, widths, decimal places, empty and absent values.

#include "layout_teste.hpp"

#include <support/notas_fiscais.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace {

using namespace velk::erp::fiscal;
using velk::test::documento_de;
using velk::test::elemento_em;
using velk::test::no_destinatario;
using velk::test::no_emitente;
using velk::test::no_endereco_emitente;
using velk::test::valor;

// The first item: the medicine.
template <class Alterar>
void no_primeiro_produto(nota_fiscal& nota, Alterar alterar)
{
    velk::test::no_produto(nota, 0, alterar);
}

struct escrita {
    char const* caso;
    std::function<void(nota_fiscal&)> alterar;
    char const* grupo;    // child of infNFe
    char const* tag;      // the first element of that name in the groups of that name
    char const* esperado; // "" when the element must be absent
};

void PrintTo(escrita const& caso, std::ostream* saida)
{
    *saida << caso.caso;
}

std::vector<escrita> const escritas = {
    // ide
    {"NFC-e offline contingency writes 9",
     [](nota_fiscal& n) { n.set_tipo_emissao(tipo_emissao::contingencia_offline_nfce); }, "ide", "tpEmis",
     "<tpEmis>9</tpEmis>"},
    {"SVC-AN writes 6", [](nota_fiscal& n) { n.set_tipo_emissao(tipo_emissao::contingencia_svc_an); }, "ide", "tpEmis",
     "<tpEmis>6</tpEmis>"},
    {"presence value 6 writes 9",
     [](nota_fiscal& n) { n.set_indicador_presenca(indicador_presenca::nao_presencial_outros); }, "ide", "indPres",
     "<indPres>9</indPres>"},
    {"presence value 5 writes 5",
     [](nota_fiscal& n) { n.set_indicador_presenca(indicador_presenca::presencial_fora_estabelecimento); }, "ide",
     "indPres", "<indPres>5</indPres>"},
    {"export writes idDest 3", [](nota_fiscal& n) { n.set_indicador_operacao(destino_operacao::exterior); }, "ide",
     "idDest", "<idDest>3</idDest>"},
    {"production writes tpAmb 1", [](nota_fiscal& n) { n.set_indicador_ambiente(indicador_ambiente::producao); },
     "ide", "tpAmb", "<tpAmb>1</tpAmb>"},
    {"return of goods writes finNFe 4",
     [](nota_fiscal& n) { n.set_indicador_finalidade_emissao(finalidade_emissao::devolucao); }, "ide", "finNFe",
     "<finNFe>4</finNFe>"},
    {"entry writes tpNF 0", [](nota_fiscal& n) { n.set_tipo_operacao(tipo_operacao::entrada); }, "ide", "tpNF",
     "<tpNF>0</tpNF>"},
    {"model 55 prints a page", [](nota_fiscal&) {}, "ide", "tpImp", "<tpImp>1</tpImp>"},
    {"model 65 prints a receipt", [](nota_fiscal& n) { n.set_modelo_emissao("65"); }, "ide", "tpImp",
     "<tpImp>4</tpImp>"},
    {"SVC-RS writes 7, the last before the jump",
     [](nota_fiscal& n) { n.set_tipo_emissao(tipo_emissao::contingencia_svc_rs); }, "ide", "tpEmis",
     "<tpEmis>7</tpEmis>"},
    {"producer's single-issue note writes mod 01",
     [](nota_fiscal& n) {
         n.set_nf_referenciadas({}).set_nfe_referenciadas({}).set_nfp_referenciadas(
             {nfp_referenciada().set_cnpj("62084519000152").set_modelo(modelo_nf_produtor::nf_avulsa).set_serie("0")});
     },
     "ide", "NFref",
     "<NFref><refNFP><cUF>0</cUF><AAMM>0000</AAMM><CNPJ>62084519000152</CNPJ><IE/><mod>01</mod><serie>0</serie>"
     "<nNF>0</nNF></refNFP></NFref>"},
    {"cash register receipt writes 2B",
     [](nota_fiscal& n) {
         n.set_cupons_referenciados({cupom_referenciado().set_modelo(modelo_cupom_fiscal::maquina_registradora)});
     },
     "ide", "refECF", "<refECF><mod>2B</mod><nECF>000</nECF><nCOO>000000</nCOO></refECF>"},
    {"series loses its zeros", [](nota_fiscal& n) { n.set_serie("001"); }, "ide", "serie", "<serie>1</serie>"},
    {"cNF has 8 digits", [](nota_fiscal& n) { n.set_codigo_nf(42); }, "ide", "cNF", "<cNF>00000042</cNF>"},
    {"cDV of a key ending in a letter",
     [](nota_fiscal& n) { n.set_chave_44_digitos("3524050893152700014155001000000721130417625X"); }, "ide", "cDV",
     "<cDV>40</cDV>"},
    {"cUF of the issuer's state",
     [](nota_fiscal& n) { no_endereco_emitente(n, [](endereco& e) { e.set_uf("RJ"); }); }, "ide", "cUF",
     "<cUF>33</cUF>"},
    {"no marketplace indicator", [](nota_fiscal& n) { n.set_indicador_intermediador({}); }, "ide", "indIntermed", ""},
    {"contingency time passed on with a normal issue",
     [](nota_fiscal& n) { n.set_data_contingencia(velk::test::horario_brasilia(2024, 5, 14, 8, 0, 5)); }, "ide",
     "dhCont", "<dhCont>2024-05-14T08:00:05-03:00</dhCont>"},
    {"contingency reason passed on",
     [](nota_fiscal& n) { n.set_justificativa_entrada_contingencia("Falha de comunicação com a SEFAZ"); }, "ide",
     "xJust", "<xJust>Falha de comunicação com a SEFAZ</xJust>"},
    {"no exit time", [](nota_fiscal& n) { n.set_data_saida_entrada({}); }, "ide", "dhSaiEnt", ""},
    // emit
    {"empty complement", [](nota_fiscal& n) { no_endereco_emitente(n, [](endereco& e) { e.set_complemento(""); }); },
     "emit", "xCpl", "<xCpl/>"},
    {"CEP has 8 digits", [](nota_fiscal& n) { no_endereco_emitente(n, [](endereco& e) { e.set_cep(1001000); }); },
     "emit", "CEP", "<CEP>01001000</CEP>"},
    {"country code has 4 digits",
     [](nota_fiscal& n) { no_endereco_emitente(n, [](endereco& e) { e.set_ibge_pais(639); }); }, "emit", "cPais",
     "<cPais>0639</cPais>"},
    {"CNAE has 7 digits", [](nota_fiscal& n) { no_emitente(n, [](emitente& e) { e.set_cnae(111301); }); }, "emit",
     "CNAE", "<CNAE>0111301</CNAE>"},
    {"no phone", [](nota_fiscal& n) { no_emitente(n, [](emitente& e) { e.set_telefone({}); }); }, "emit", "fone", ""},
    {"Simples Nacional above the sub-limit writes CRT 2",
     [](nota_fiscal& n) {
         no_emitente(n, [](emitente& e) {
             e.set_regime_fiscal(regime_tributario::simples_nacional_excesso_sublimite);
         });
     },
     "emit", "CRT", "<CRT>2</CRT>"},
    {"IE of the substitute", [](nota_fiscal& n) { no_emitente(n, [](emitente& e) { e.set_iest("330012345"); }); },
     "emit", "IEST", "<IEST>330012345</IEST>"},
    // dest
    {"CPF goes before the CNPJ",
     [](nota_fiscal& n) { no_destinatario(n, [](destinatario& d) { d.set_cpf("28461935764"); }); }, "dest", "CPF",
     "<CPF>28461935764</CPF>"},
    {"no CNPJ beside the CPF",
     [](nota_fiscal& n) { no_destinatario(n, [](destinatario& d) { d.set_cpf("28461935764"); }); }, "dest", "CNPJ",
     ""},
    {"empty CPF reads as zero", [](nota_fiscal& n) { no_destinatario(n, [](destinatario& d) { d.set_cpf(""); }); },
     "dest", "CPF", "<CPF>00000000000</CPF>"},
    {"CPF keeps its leading zero",
     [](nota_fiscal& n) { no_destinatario(n, [](destinatario& d) { d.set_cpf("01234567890"); }); }, "dest", "CPF",
     "<CPF>01234567890</CPF>"},
    {"foreigner",
     [](nota_fiscal& n) {
         no_destinatario(n, [](destinatario& d) { d.set_cnpj({}).set_indicador_estrangeiro("AB1234567"); });
     },
     "dest", "idEstrangeiro", "<idEstrangeiro>AB1234567</idEstrangeiro>"},
    {"phone without address is not written",
     [](nota_fiscal& n) { no_destinatario(n, [](destinatario& d) { d.set_endereco({}); }); }, "dest", "fone", ""},
    {"exempt from registration writes indIEDest 2",
     [](nota_fiscal& n) {
         no_destinatario(n, [](destinatario& d) {
             d.set_indicador_de_ie(indicador_ie_destinatario::contribuinte_isento);
         });
     },
     "dest", "indIEDest", "<indIEDest>2</indIEDest>"},
    {"SUFRAMA registration",
     [](nota_fiscal& n) { no_destinatario(n, [](destinatario& d) { d.set_inscricao_suframa("200123456"); }); },
     "dest", "ISUF", "<ISUF>200123456</ISUF>"},
    // det
    {"NCM 0", [](nota_fiscal& n) { no_primeiro_produto(n, [](produto& p) { p.set_ncm(0); }); }, "det", "NCM",
     "<NCM>00000000</NCM>"},
    {"NCM of 7 digits", [](nota_fiscal& n) { no_primeiro_produto(n, [](produto& p) { p.set_ncm(1234567); }); }, "det",
     "NCM", "<NCM>01234567</NCM>"},
    {"EXTIPI 5", [](nota_fiscal& n) { no_primeiro_produto(n, [](produto& p) { p.set_extipi(5); }); }, "det", "EXTIPI",
     "<EXTIPI>05</EXTIPI>"},
    {"EXTIPI 98", [](nota_fiscal& n) { no_primeiro_produto(n, [](produto& p) { p.set_extipi(98); }); }, "det",
     "EXTIPI", "<EXTIPI>98</EXTIPI>"},
    {"EXTIPI 99", [](nota_fiscal& n) { no_primeiro_produto(n, [](produto& p) { p.set_extipi(99); }); }, "det",
     "EXTIPI", "<EXTIPI>099</EXTIPI>"},
    {"CEST has 7 digits", [](nota_fiscal& n) { no_primeiro_produto(n, [](produto& p) { p.set_cest(100); }); }, "det",
     "CEST", "<CEST>0000100</CEST>"},
    {"quantity with four places",
     [](nota_fiscal& n) { no_primeiro_produto(n, [](produto& p) { p.set_quantidade_comercial(valor("1.5")); }); },
     "det", "qCom", "<qCom>1.5000</qCom>"},
    {"unit price with ten places",
     [](nota_fiscal& n) { no_primeiro_produto(n, [](produto& p) { p.set_valor_unitario_comercial(valor("2")); }); },
     "det", "vUnCom", "<vUnCom>2.0000000000</vUnCom>"},
    {"more places than the tag has",
     [](nota_fiscal& n) { no_primeiro_produto(n, [](produto& p) { p.set_valor_total_bruto(valor("10.005")); }); },
     "det", "vProd", "<vProd>10.01</vProd>"},
    {"discount", [](nota_fiscal& n) { no_primeiro_produto(n, [](produto& p) { p.set_valor_desconto(valor("0.5")); }); },
     "det", "vDesc", "<vDesc>0.50</vDesc>"},
    {"import by tow writes 13",
     [](nota_fiscal& n) {
         velk::test::no_produto(n, 1, [](produto& p) {
             std::vector<declaracao_importacao> declaracoes = p.get_declaracao_importacao();
             declaracoes[0]
                 .set_via_transporte(via_transporte::por_reboque)
                 .set_forma_intermedio_importacao(forma_intermedio_importacao::encomenda)
                 .set_cnpj_importador("08931527000141")
                 .set_uf_importador("SP");
             p.set_declaracao_importacao(declaracoes);
         });
     },
     "det", "DI",
     "<DI><nDI>2408731562</nDI><dDI>2024-04-02</dDI><xLocDesemb>PORTO DE SANTOS</xLocDesemb><UFDesemb>SP</UFDesemb>"
     "<dDesemb>2024-04-05</dDesemb><tpViaTransp>13</tpViaTransp><vAFRMM>125.40</vAFRMM><tpIntermedio>3</tpIntermedio>"
     "<CNPJ>08931527000141</CNPJ><UFTerceiro>SP</UFTerceiro><cExportador>SZMED0042</cExportador><adi><nAdicao>1"
     "</nAdicao><nSeqAdic>1</nSeqAdic><cFabricante>SZMED0042</cFabricante></adi></DI>"},
    {"empty barcode", [](nota_fiscal& n) { no_primeiro_produto(n, [](produto& p) { p.set_codigo_de_barras(""); }); },
     "det", "cEAN", "<cEAN/>"},
    {"item outside the total",
     [](nota_fiscal& n) {
         no_primeiro_produto(n, [](produto& p) {
             p.set_indicador_item_compoe_valor_total(indicador_total::nao_compoe);
         });
     },
     "det", "indTot", "<indTot>0</indTot>"},
    {"tax benefit code",
     [](nota_fiscal& n) { no_primeiro_produto(n, [](produto& p) { p.set_codigo_beneficio_fiscal_uf("SP070001"); }); },
     "det", "cBenef", "<cBenef>SP070001</cBenef>"},
    {"exempt medicine",
     [](nota_fiscal& n) {
         no_primeiro_produto(n, [](produto& p) {
             p.set_medicamentos(std::vector<medicamento>{
                 medicamento()
                     .set_codigo_anvisa(medicamento_isento().set_motivo("Produto manipulado em farmácia"))
                     .set_preco_maximo_consumidor(valor("0"))});
         });
     },
     "det", "med",
     "<med><cProdANVISA>ISENTO</cProdANVISA><xMotivoIsencao>Produto manipulado em farmácia</xMotivoIsencao>"
     "<vPMC>0.00</vPMC></med>"},
    {"firearms replace medicines",
     [](nota_fiscal& n) {
         no_primeiro_produto(n, [](produto& p) {
             p.set_armas(std::vector<arma>{arma()
                                               .set_tipo(tipo_arma::uso_restrito)
                                               .set_numero_serie_arma("TA123456")
                                               .set_numero_serie_cano("CN98765")
                                               .set_descricao("PISTOLA CAL .40")});
         });
     },
     "det", "arma",
     "<arma><tpArma>1</tpArma><nSerie>TA123456</nSerie><nCano>CN98765</nCano><descr>PISTOLA CAL .40</descr></arma>"},
    {"fuel replaces medicines",
     [](nota_fiscal& n) {
         no_primeiro_produto(n, [](produto& p) {
             p.set_combustiveis(combustiveis().set_codigo_produto_anp(320102001).set_uf_consumo("RJ"));
         });
     },
     "det", "med", ""},
    {"export detail without values",
     [](nota_fiscal& n) { no_primeiro_produto(n, [](produto& p) { p.set_grupo_exportacao({grupo_exportacao()}); }); },
     "det", "detExport", "<detExport><exportInd/></detExport>"},
    {"taxes given back",
     [](nota_fiscal& n) {
         no_primeiro_produto(n, [](produto& p) {
             p.set_tributos_devolvidos(tributos_devolvidos()
                                           .set_percentual(valor("100"))
                                           .set_ipi(ipi_devolvido().set_valor(valor("12.5"))));
         });
     },
     "det", "impostoDevol",
     "<impostoDevol><pDevol>100.00</pDevol><IPI><vIPIDevol>12.50</vIPIDevol></IPI></impostoDevol>"},
    {"additional information of the item",
     [](nota_fiscal& n) {
         no_primeiro_produto(n, [](produto& p) { p.set_informacoes_adicionais("Uso exclusivo hospitalar"); });
     },
     "det", "infAdProd", "<infAdProd>Uso exclusivo hospitalar</infAdProd>"},
};

class escrever_valor : public testing::TestWithParam<escrita> {};

TEST_P(escrever_valor, in_the_form_of_its_tag)
{
    escrita const& caso = GetParam();
    nota_fiscal nota = velk::test::nota_nfe_completa();
    caso.alterar(nota);
    std::string todos;
    for (std::string const& grupo : velk::test::grupos(documento_de(nota), caso.grupo)) {
        todos += grupo;
    }
    ASSERT_FALSE(todos.empty()) << caso.grupo;
    EXPECT_EQ(elemento_em(todos, caso.tag), caso.esperado) << todos;
}

INSTANTIATE_TEST_SUITE_P(tags, escrever_valor, testing::ValuesIn(escritas));

}  // namespace
