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
using velk::test::alteracao;
using velk::test::com_ipi;
using velk::test::documento_de;
using velk::test::elemento_em;
using velk::test::no_destinatario;
using velk::test::no_emitente;
using velk::test::no_endereco_emitente;
using velk::test::no_primeiro_produto;
using velk::test::tributar;
using velk::test::valor;

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

// The time and the reason of a contingency, which go together.
void em_contingencia(nota_fiscal& nota)
{
    nota.set_data_contingencia(velk::test::horario_brasilia(2024, 5, 14, 8, 0, 5))
        .set_justificativa_entrada_contingencia("Falha de comunicação com a SEFAZ");
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
    {"production writes tpAmb 1", [](nota_fiscal& n) { n.set_indicador_ambiente(indicador_ambiente::producao); }, "ide",
     "tpAmb", "<tpAmb>1</tpAmb>"},
    {"return of goods writes finNFe 4",
     [](nota_fiscal& n) { n.set_indicador_finalidade_emissao(finalidade_emissao::devolucao); }, "ide", "finNFe",
     "<finNFe>4</finNFe>"},
    {"entry writes tpNF 0", [](nota_fiscal& n) { n.set_tipo_operacao(tipo_operacao::entrada); }, "ide", "tpNF",
     "<tpNF>0</tpNF>"},
    {"model 55 prints a page", [](nota_fiscal&) {}, "ide", "tpImp", "<tpImp>1</tpImp>"},
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
    {"cUF of the issuer's state", no_endereco_emitente([](endereco& e) { e.set_uf("RJ"); }), "ide", "cUF",
     "<cUF>33</cUF>"},
    {"no marketplace indicator", [](nota_fiscal& n) { n.set_indicador_intermediador({}); }, "ide", "indIntermed", ""},
    {"contingency time passed on with a normal issue", em_contingencia, "ide", "dhCont",
     "<dhCont>2024-05-14T08:00:05-03:00</dhCont>"},
    {"contingency reason passed on", em_contingencia, "ide", "xJust",
     "<xJust>Falha de comunicação com a SEFAZ</xJust>"},
    {"no exit time", [](nota_fiscal& n) { n.set_data_saida_entrada({}); }, "ide", "dhSaiEnt", ""},
    // emit
    {"empty complement", no_endereco_emitente([](endereco& e) { e.set_complemento(""); }), "emit", "xCpl", "<xCpl/>"},
    {"CEP has 8 digits", no_endereco_emitente([](endereco& e) { e.set_cep(1001000); }), "emit", "CEP",
     "<CEP>01001000</CEP>"},
    {"country code has 4 digits", no_endereco_emitente([](endereco& e) { e.set_ibge_pais(639); }), "emit", "cPais",
     "<cPais>0639</cPais>"},
    {"CNAE has 7 digits", no_emitente([](emitente& e) { e.set_cnae(111301); }), "emit", "CNAE", "<CNAE>0111301</CNAE>"},
    {"no phone", no_emitente([](emitente& e) { e.set_telefone({}); }), "emit", "fone", ""},
    {"Simples Nacional above the sub-limit writes CRT 2",
     no_emitente([](emitente& e) { e.set_regime_fiscal(regime_tributario::simples_nacional_excesso_sublimite); }),
     "emit", "CRT", "<CRT>2</CRT>"},
    {"IE of the substitute", no_emitente([](emitente& e) { e.set_iest("330012345"); }), "emit", "IEST",
     "<IEST>330012345</IEST>"},
    // dest
    {"CPF goes before the CNPJ", no_destinatario([](destinatario& d) { d.set_cpf("28461935764"); }), "dest", "CPF",
     "<CPF>28461935764</CPF>"},
    {"no CNPJ beside the CPF", no_destinatario([](destinatario& d) { d.set_cpf("28461935764"); }), "dest", "CNPJ", ""},
    {"empty CPF reads as zero", no_destinatario([](destinatario& d) { d.set_cpf(""); }), "dest", "CPF",
     "<CPF>00000000000</CPF>"},
    {"CPF keeps its leading zero", no_destinatario([](destinatario& d) { d.set_cpf("01234567890"); }), "dest", "CPF",
     "<CPF>01234567890</CPF>"},
    {"foreigner", no_destinatario([](destinatario& d) { d.set_cnpj({}).set_indicador_estrangeiro("AB1234567"); }),
     "dest", "idEstrangeiro", "<idEstrangeiro>AB1234567</idEstrangeiro>"},
    {"phone without address is not written", no_destinatario([](destinatario& d) { d.set_endereco({}); }), "dest",
     "fone", ""},
    {"exempt from registration writes indIEDest 2",
     no_destinatario([](destinatario& d) { d.set_indicador_de_ie(indicador_ie_destinatario::contribuinte_isento); }),
     "dest", "indIEDest", "<indIEDest>2</indIEDest>"},
    {"SUFRAMA registration", no_destinatario([](destinatario& d) { d.set_inscricao_suframa("200123456"); }), "dest",
     "ISUF", "<ISUF>200123456</ISUF>"},
    // det
    {"NCM 0", no_primeiro_produto([](produto& p) { p.set_ncm(0); }), "det", "NCM", "<NCM>00000000</NCM>"},
    {"NCM of 7 digits", no_primeiro_produto([](produto& p) { p.set_ncm(1234567); }), "det", "NCM",
     "<NCM>01234567</NCM>"},
    {"EXTIPI 5", no_primeiro_produto([](produto& p) { p.set_extipi(5); }), "det", "EXTIPI", "<EXTIPI>05</EXTIPI>"},
    {"EXTIPI 98", no_primeiro_produto([](produto& p) { p.set_extipi(98); }), "det", "EXTIPI", "<EXTIPI>98</EXTIPI>"},
    {"EXTIPI 99", no_primeiro_produto([](produto& p) { p.set_extipi(99); }), "det", "EXTIPI", "<EXTIPI>099</EXTIPI>"},
    {"CEST has 7 digits", no_primeiro_produto([](produto& p) { p.set_cest(100); }), "det", "CEST",
     "<CEST>0000100</CEST>"},
    {"quantity with four places", no_primeiro_produto([](produto& p) { p.set_quantidade_comercial(valor("1.5")); }),
     "det", "qCom", "<qCom>1.5000</qCom>"},
    {"unit price with ten places", no_primeiro_produto([](produto& p) { p.set_valor_unitario_comercial(valor("2")); }),
     "det", "vUnCom", "<vUnCom>2.0000000000</vUnCom>"},
    {"more places than the tag has", no_primeiro_produto([](produto& p) { p.set_valor_total_bruto(valor("10.005")); }),
     "det", "vProd", "<vProd>10.01</vProd>"},
    {"discount", no_primeiro_produto([](produto& p) { p.set_valor_desconto(valor("0.5")); }), "det", "vDesc",
     "<vDesc>0.50</vDesc>"},
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
    {"empty barcode", no_primeiro_produto([](produto& p) { p.set_codigo_de_barras(""); }), "det", "cEAN", "<cEAN/>"},
    {"item outside the total",
     no_primeiro_produto([](produto& p) { p.set_indicador_item_compoe_valor_total(indicador_total::nao_compoe); }),
     "det", "indTot", "<indTot>0</indTot>"},
    {"tax benefit code", no_primeiro_produto([](produto& p) { p.set_codigo_beneficio_fiscal_uf("SP070001"); }), "det",
     "cBenef", "<cBenef>SP070001</cBenef>"},
    {"exempt medicine",
     no_primeiro_produto([](produto& p) {
         p.set_medicamentos(std::vector<medicamento>{
             medicamento()
                 .set_codigo_anvisa(medicamento_isento().set_motivo("Produto manipulado em farmácia"))
                 .set_preco_maximo_consumidor(valor("0"))});
     }),
     "det", "med",
     "<med><cProdANVISA>ISENTO</cProdANVISA><xMotivoIsencao>Produto manipulado em farmácia</xMotivoIsencao>"
     "<vPMC>0.00</vPMC></med>"},
    {"firearms replace medicines",
     no_primeiro_produto([](produto& p) {
         p.set_armas(std::vector<arma>{arma()
                                           .set_tipo(tipo_arma::uso_restrito)
                                           .set_numero_serie_arma("TA123456")
                                           .set_numero_serie_cano("CN98765")
                                           .set_descricao("PISTOLA CAL .40")});
     }),
     "det", "arma",
     "<arma><tpArma>1</tpArma><nSerie>TA123456</nSerie><nCano>CN98765</nCano><descr>PISTOLA CAL .40</descr></arma>"},
    {"fuel replaces medicines",
     no_primeiro_produto([](produto& p) {
         p.set_combustiveis(combustiveis().set_codigo_produto_anp(320102001).set_uf_consumo("RJ"));
     }),
     "det", "med", ""},
    {"export detail without values has no indirect export",
     no_primeiro_produto([](produto& p) { p.set_grupo_exportacao({grupo_exportacao()}); }), "det", "detExport",
     "<detExport/>"},
    {"taxes given back",
     no_primeiro_produto([](produto& p) {
         p.set_tributos_devolvidos(tributos_devolvidos()
                                       .set_percentual(valor("100"))
                                       .set_ipi(ipi_devolvido().set_valor(valor("12.5"))));
     }),
     "det", "impostoDevol",
     "<impostoDevol><pDevol>100.00</pDevol><IPI><vIPIDevol>12.50</vIPIDevol></IPI></impostoDevol>"},
    {"additional information of the item",
     no_primeiro_produto([](produto& p) { p.set_informacoes_adicionais("Uso exclusivo hospitalar"); }), "det",
     "infAdProd", "<infAdProd>Uso exclusivo hospitalar</infAdProd>"},
};

// The taxes and closing groups.

template <class Grupo>
Grupo origem_nacional(Grupo grupo)
{
    grupo.set_origem_mercadoria(origem_mercadoria::nacional);
    return grupo;
}

grupo_icms_desonerado desonerado(motivo_desoneracao_icms motivo)
{
    return grupo_icms_desonerado().set_valor_icms_desonerado(valor("5")).set_motivo(motivo);
}

tributacao_st_icms_90 st_90()
{
    return tributacao_st_icms_90()
        .set_modalidade_bc_icms_st(modalidade_bc_icms_st::pauta)
        .set_valor_bc_icms_st(valor("140"))
        .set_aliquota_icms_st(valor("18"))
        .set_valor_icms_st(valor("7.2"))
        .set_fcp_st_retido(grupo_fcp_st_retido().set_valor_bc(valor("140")).set_percentual(valor("2")).set_valor(
            valor("2.8")));
}

alteracao com_pis_cofins(tributacao_pis_cofins tributacao)
{
    return no_primeiro_produto([tributacao](produto& p) { p.set_tributacao_pis_cofins(tributacao); });
}

template <class Alterar>
alteracao no_transporte(Alterar alterar)
{
    return [alterar](nota_fiscal& nota) {
        informacoes_transporte parte = nota.get_informacoes_transporte();
        alterar(parte);
        nota.set_informacoes_transporte(parte);
    };
}

alteracao pago_com(detalhes_pagamento pagamento)
{
    return [pagamento](nota_fiscal& nota) {
        nota.set_informacoes_pagamento(informacoes_pagamento().set_detalhes_pagamento(
            {detalhes_pagamento(pagamento).set_valor_pagamento(valor("6189.5"))}));
    };
}

std::vector<escrita> const escritas_impostos = {
    // ICMS
    {"ICMS00 leaves out the base of its fund",
     no_primeiro_produto([](produto& p) {
         auto icms = std::get<grupo_tributacao_icms_00>(p.get_grupo_tributacao_icms()->base());
         p.set_tributacao(icms.set_fcp(
             grupo_fcp().set_valor_bc(valor("1850")).set_percentual(valor("2")).set_valor(valor("37"))));
     }),
     "det", "ICMS",
     "<ICMS><ICMS00><orig>0</orig><CST>00</CST><modBC>3</modBC><vBC>1850.00</vBC><pICMS>12.0000</pICMS>"
     "<vICMS>222.00</vICMS><pFCP>2.0000</pFCP><vFCP>37.00</vFCP></ICMS00></ICMS>"},
    {"ICMS10 writes every tag of its funds",
     tributar(origem_nacional(grupo_tributacao_icms_10())
                  .set_cst(cst_icms::cst_10)
                  .set_modalidade_bc_icms(modalidade_bc_icms::pauta)
                  .set_valor_bc_icms(valor("100"))
                  .set_aliquota_icms(valor("18"))
                  .set_valor_icms(valor("18"))
                  .set_fcp(grupo_fcp().set_valor_bc(valor("100")).set_percentual(valor("2")).set_valor(
                      valor("2")))
                  .set_modalidade_bc_icms_st(modalidade_bc_icms_st::lista_neutra)
                  .set_percentual_margem_valor_adicionado_icms_st(valor("40"))
                  .set_percentual_reducao_bc_icms_st(valor("10"))
                  .set_valor_bc_icms_st(valor("126"))
                  .set_aliquota_icms_st(valor("18"))
                  .set_valor_icms_st(valor("4.68"))
                  .set_fcp_st_retido(grupo_fcp_st_retido()
                                         .set_valor_bc(valor("126"))
                                         .set_percentual(valor("2"))
                                         .set_valor(valor("2.52")))),
     "det", "ICMS",
     "<ICMS><ICMS10><orig>0</orig><CST>10</CST><modBC>1</modBC><vBC>100.00</vBC><pICMS>18.0000</pICMS>"
     "<vICMS>18.00</vICMS><vBCFCP>100.00</vBCFCP><pFCP>2.0000</pFCP><vFCP>2.00</vFCP><modBCST>3</modBCST>"
     "<pMVAST>40.0000</pMVAST><pRedBCST>10.0000</pRedBCST><vBCST>126.00</vBCST><pICMSST>18.0000</pICMSST>"
     "<vICMSST>4.68</vICMSST><vBCFCPST>126.00</vBCFCPST><pFCPST>2.0000</pFCPST><vFCPST>2.52</vFCPST></ICMS10>"
     "</ICMS>"},
    {"ICMS20 with relief for reason 9",
     tributar(origem_nacional(grupo_tributacao_icms_20())
                  .set_cst(cst_icms::cst_20)
                  .set_percentual_reducao_bc_icms(valor("33.33"))
                  .set_valor_bc_icms(valor("66.67"))
                  .set_aliquota_icms(valor("18"))
                  .set_valor_icms(valor("12"))
                  .set_grupo_icms_desonerado(desonerado(motivo_desoneracao_icms::outros))),
     "det", "ICMS",
     "<ICMS><ICMS20><orig>0</orig><CST>20</CST><modBC>0</modBC><pRedBC>33.3300</pRedBC><vBC>66.67</vBC>"
     "<pICMS>18.0000</pICMS><vICMS>12.00</vICMS><vICMSDeson>5.00</vICMSDeson><motDesICMS>9</motDesICMS></ICMS20>"
     "</ICMS>"},
    {"ICMS40 with relief for SUFRAMA writes 7",
     tributar(origem_nacional(grupo_tributacao_icms_40())
                  .set_cst(cst_icms::cst_50)
                  .set_grupo_icms_desonerado(desonerado(motivo_desoneracao_icms::suframa))),
     "det", "ICMS",
     "<ICMS><ICMS40><orig>0</orig><CST>50</CST><vICMSDeson>5.00</vICMSDeson><motDesICMS>7</motDesICMS></ICMS40>"
     "</ICMS>"},
    {"ICMS51 with its modBC and every value",
     tributar(origem_nacional(grupo_tributacao_icms_51())
                  .set_cst(cst_icms::cst_51)
                  .set_percentual_reducao_bc_icms(valor("0"))
                  .set_valor_bc_icms(valor("100"))
                  .set_aliquota_icms(valor("18"))
                  .set_valor_icms_operacao(valor("18"))
                  .set_percentual_diferimento(valor("100"))
                  .set_valor_icms_diferido(valor("18"))
                  .set_valor_icms(valor("0"))),
     "det", "ICMS",
     "<ICMS><ICMS51><orig>0</orig><CST>51</CST><modBC>0</modBC><pRedBC>0.0000</pRedBC><vBC>100.00</vBC>"
     "<pICMS>18.0000</pICMS><vICMSOp>18.00</vICMSOp><pDif>100.0000</pDif><vICMSDif>18.00</vICMSDif>"
     "<vICMS>0.00</vICMS></ICMS51></ICMS>"},
    {"ICMS60 with retained, fund and effective ICMS",
     tributar(origem_nacional(grupo_tributacao_icms_60())
                  .set_cst(cst_icms::cst_60)
                  .set_icms_st_retido(grupo_icms_st_retido()
                                          .set_valor_bc_icms_retido(valor("100"))
                                          .set_aliquota_suportada_consumidor_final(valor("20"))
                                          .set_valor_icms_proprio_substituto(valor("12"))
                                          .set_valor_icms_st_retido(valor("8")))
                  .set_fcp_st_retido_anteriormente(grupo_fcp_st_retido_anteriormente()
                                                       .set_valor_bc(valor("100"))
                                                       .set_percentual(valor("2"))
                                                       .set_valor(valor("2")))
                  .set_informacoes_icms_efetivo(informacoes_icms_efetivo()
                                                    .set_percentual_reducao_bc(valor("0"))
                                                    .set_valor_bc(valor("100"))
                                                    .set_aliquota(valor("18"))
                                                    .set_valor(valor("18")))),
     "det", "ICMS",
     "<ICMS><ICMS60><orig>0</orig><CST>60</CST><vBCSTRet>100.00</vBCSTRet><pST>20.0000</pST>"
     "<vICMSSubstituto>12.00</vICMSSubstituto><vICMSSTRet>8.00</vICMSSTRet><vBCFCPSTRet>100.00</vBCFCPSTRet>"
     "<pFCPSTRet>2.0000</pFCPSTRet><vFCPSTRet>2.00</vFCPSTRet><pRedBCEfet>0.0000</pRedBCEfet><vBCEfet>100.00"
     "</vBCEfet><pICMSEfet>18.0000</pICMSEfet><vICMSEfet>18.00</vICMSEfet></ICMS60></ICMS>"},
    {"ICMS70 without its own values writes zeros",
     tributar(origem_nacional(grupo_tributacao_icms_70())
                  .set_cst(cst_icms::cst_70)
                  .set_percentual_reducao_bc_icms(valor("10"))
                  .set_valor_bc_icms_st(valor("90"))
                  .set_valor_icms_st(valor("16.2"))),
     "det", "ICMS",
     "<ICMS><ICMS70><orig>0</orig><CST>70</CST><modBC>0</modBC><pRedBC>10.0000</pRedBC><vBC>0.00</vBC>"
     "<pICMS>0.0000</pICMS><vICMS>0.00</vICMS><modBCST>0</modBCST><vBCST>90.00</vBCST><pICMSST>0.0000</pICMSST>"
     "<vICMSST>16.20</vICMSST></ICMS70></ICMS>"},
    {"ICMS90 with its three optional parts",
     tributar(origem_nacional(grupo_tributacao_icms_90())
                  .set_cst(cst_icms::cst_90)
                  .set_tributacao_normal_icms_90(
                      tributacao_normal_icms_90()
                          .set_modalidade_bc_icms(modalidade_bc_icms::preco_tabelado)
                          .set_valor_bc_icms(valor("100"))
                          .set_percentual_reducao_bc_icms(valor("5"))
                          .set_aliquota_icms(valor("18"))
                          .set_valor_icms(valor("17.1"))
                          .set_fcp(grupo_fcp().set_valor_bc(valor("95")).set_percentual(valor("2")).set_valor(
                              valor("1.9"))))
                  .set_tributacao_st_icms_90(st_90())
                  .set_grupo_icms_desonerado(desonerado(motivo_desoneracao_icms::produtor_agropecuario))),
     "det", "ICMS",
     "<ICMS><ICMS90><orig>0</orig><CST>90</CST><modBC>2</modBC><vBC>100.00</vBC><pRedBC>5.0000</pRedBC>"
     "<pICMS>18.0000</pICMS><vICMS>17.10</vICMS><vBCFCP>95.00</vBCFCP><pFCP>2.0000</pFCP><vFCP>1.90</vFCP>"
     "<modBCST>5</modBCST><vBCST>140.00</vBCST><pICMSST>18.0000</pICMSST><vICMSST>7.20</vICMSST>"
     "<vBCFCPST>140.00</vBCFCPST><pFCPST>2.0000</pFCPST><vFCPST>2.80</vFCPST><vICMSDeson>5.00</vICMSDeson>"
     "<motDesICMS>3</motDesICMS></ICMS90></ICMS>"},
    {"ICMS90 alone", tributar(grupo_tributacao_icms_90().set_cst(cst_icms::cst_90)), "det", "ICMS",
     "<ICMS><ICMS90><orig>0</orig><CST>90</CST></ICMS90></ICMS>"},
    {"ICMSST passes the substitution on",
     tributar(grupo_repasse_icms_st()
                  .set_origem_mercadoria(origem_mercadoria::estrangeira_mercado_interno)
                  .set_tributacao_icms(cst_icms::cst_41)
                  .set_valor_bc_icms_st_retido(valor("500"))
                  .set_valor_icms_st_retido(valor("45"))
                  .set_valor_bc_icms_st_destino(valor("520"))
                  .set_valor_icms_st_destino(valor("93.6"))),
     "det", "ICMS",
     "<ICMS><ICMSST><orig>2</orig><CST>41</CST><vBCSTRet>500.00</vBCSTRet><vICMSSTRet>45.00</vICMSSTRet>"
     "<vBCSTDest>520.00</vBCSTDest><vICMSSTDest>93.60</vICMSSTDest></ICMSST></ICMS>"},
    {"ICMSSN101",
     tributar(origem_nacional(grupo_tributacao_icms_101())
                  .set_csosn(csosn::csosn_101)
                  .set_aliquota_de_credito_sn(valor("2.56"))
                  .set_valor_de_credito_sn(valor("47.36"))),
     "det", "ICMS",
     "<ICMS><ICMSSN101><orig>0</orig><CSOSN>101</CSOSN><pCredSN>2.5600</pCredSN><vCredICMSSN>47.36</vCredICMSSN>"
     "</ICMSSN101></ICMS>"},
    {"CSOSN 300 in ICMSSN102",
     tributar(grupo_tributacao_icms_102()
                  .set_origem_mercadoria(origem_mercadoria::nacional_conteudo_importado_acima_70)
                  .set_csosn(csosn::csosn_300)),
     "det", "ICMS", "<ICMS><ICMSSN102><orig>8</orig><CSOSN>300</CSOSN></ICMSSN102></ICMS>"},
    {"ICMSSN201 without vICMSST writes zero",
     tributar(origem_nacional(grupo_tributacao_icms_201())
                  .set_csosn(csosn::csosn_201)
                  .set_modalidade_bc_icms_st(modalidade_bc_icms_st::margem_valor_agregado)
                  .set_valor_bc_icms_st(valor("160"))
                  .set_aliquota_icms_st(valor("17"))
                  .set_aliquota_de_credito_sn(valor("3.01"))
                  .set_valor_de_credito_sn(valor("3.01"))),
     "det", "ICMS",
     "<ICMS><ICMSSN201><orig>0</orig><CSOSN>201</CSOSN><modBCST>4</modBCST><vBCST>160.00</vBCST>"
     "<pICMSST>17.0000</pICMSST><vICMSST>0.00</vICMSST><pCredSN>3.0100</pCredSN><vCredICMSSN>3.01</vCredICMSSN>"
     "</ICMSSN201></ICMS>"},
    {"CSOSN 203 in ICMSSN202",
     tributar(origem_nacional(grupo_tributacao_icms_202())
                  .set_csosn(csosn::csosn_203)
                  .set_modalidade_bc_icms_st(modalidade_bc_icms_st::preco_tabelado)
                  .set_valor_bc_icms_st(valor("50"))
                  .set_aliquota_icms_st(valor("17"))
                  .set_valor_icms_st(valor("8.5"))),
     "det", "ICMS",
     "<ICMS><ICMSSN202><orig>0</orig><CSOSN>203</CSOSN><modBCST>0</modBCST><vBCST>50.00</vBCST>"
     "<pICMSST>17.0000</pICMSST><vICMSST>8.50</vICMSST></ICMSSN202></ICMS>"},
    {"ICMSSN500 alone", tributar(origem_nacional(grupo_tributacao_icms_500()).set_csosn(csosn::csosn_500)), "det",
     "ICMS", "<ICMS><ICMSSN500><orig>0</orig><CSOSN>500</CSOSN></ICMSSN500></ICMS>"},
    {"ICMSSN900 with normal ICMS, substitution and credit",
     tributar(origem_nacional(grupo_tributacao_icms_900())
                  .set_csosn(csosn::csosn_900)
                  .set_tributacao_normal_icms_900(tributacao_normal_icms_900()
                                                      .set_modalidade_bc_icms(modalidade_bc_icms::valor_operacao)
                                                      .set_valor_bc_icms(valor("100"))
                                                      .set_aliquota_icms(valor("17"))
                                                      .set_valor_icms(valor("17")))
                  .set_tributacao_st_icms_900(tributacao_st_icms_900()
                                                  .set_modalidade_bc_icms_st(modalidade_bc_icms_st::lista_negativa)
                                                  .set_valor_bc_icms_st(valor("150"))
                                                  .set_aliquota_icms_st(valor("17"))
                                                  .set_valor_icms_st(valor("8.5")))
                  .set_tributacao_credito_sn_icms_900(tributacao_credito_sn_icms_900()
                                                          .set_aliquota_de_credito_sn(valor("1.25"))
                                                          .set_valor_de_credito_sn(valor("1.25")))),
     "det", "ICMS",
     "<ICMS><ICMSSN900><orig>0</orig><CSOSN>900</CSOSN><modBC>3</modBC><vBC>100.00</vBC><pICMS>17.0000</pICMS>"
     "<vICMS>17.00</vICMS><modBCST>1</modBCST><vBCST>150.00</vBCST><pICMSST>17.0000</pICMSST>"
     "<vICMSST>8.50</vICMSST><pCredSN>1.2500</pCredSN><vCredICMSSN>1.25</vCredICMSSN></ICMSSN900></ICMS>"},
    {"ICMSSN900 with a credit of neither rate nor value writes none",
     tributar(origem_nacional(grupo_tributacao_icms_900())
                  .set_csosn(csosn::csosn_900)
                  .set_tributacao_credito_sn_icms_900(tributacao_credito_sn_icms_900())),
     "det", "ICMS", "<ICMS><ICMSSN900><orig>0</orig><CSOSN>900</CSOSN></ICMSSN900></ICMS>"},
    // IPI
    {"IPI CST 49 is taxed",
     com_ipi(tributacao_ipi()
                 .set_cnpj_produtor("08931527000141")
                 .set_codigo_selo_controle_ipi("971001")
                 .set_quantidade_selo_controle(1000)
                 .set_classe_enquadramento_ipi("301")
                 .set_cst_ipi(cst_ipi::cst_49)
                 .set_tributacao_ipi_calculo_aliquota(
                     tributacao_ipi_calculo_aliquota().set_valor_bc_ipi(valor("1850")).set_aliquota_ipi(
                         valor("5")))
                 .set_valor_ipi(valor("92.5"))),
     "det", "IPI",
     "<IPI><CNPJProd>08931527000141</CNPJProd><cSelo>971001</cSelo><qSelo>000000001000</qSelo><cEnq>301</cEnq>"
     "<IPITrib><CST>49</CST><vBC>1850.00</vBC><pIPI>5.0000</pIPI><vIPI>92.50</vIPI></IPITrib></IPI>"},
    {"IPI by unit takes the taxable quantity",
     com_ipi(tributacao_ipi()
                 .set_classe_enquadramento_ipi("999")
                 .set_cst_ipi(cst_ipi::cst_99)
                 .set_tributacao_ipi_calculo_valor(
                     tributacao_ipi_calculo_valor().set_valor_unidade_tributavel(valor("1.5")))
                 .set_valor_ipi(valor("15"))),
     "det", "IPITrib", "<IPITrib><CST>99</CST><qUnid>10.0000</qUnid><vUnid>1.5000</vUnid><vIPI>15.00</vIPI></IPITrib>"},
    {"IPI taxed without a calculation",
     com_ipi(tributacao_ipi().set_classe_enquadramento_ipi("999").set_valor_ipi(valor("0"))), "det", "IPITrib",
     "<IPITrib><CST>00</CST><vBC>0.00</vBC><pIPI>0.0000</pIPI><vIPI>0.00</vIPI></IPITrib>"},
    {"IPI CST 01 is not taxed",
     com_ipi(tributacao_ipi().set_classe_enquadramento_ipi("1").set_cst_ipi(cst_ipi::cst_01)), "det", "IPI",
     "<IPI><qSelo>000000000000</qSelo><cEnq>001</cEnq><IPINT><CST>01</CST></IPINT></IPI>"},
    {"import tax without IOF writes zero",
     no_primeiro_produto([](produto& p) {
         p.set_tributacao_importacao(tributacao_imposto_importacao()
                                         .set_valor_bc_imposto_importacao(valor("1000"))
                                         .set_valor_despesas_aduaneiras(valor("20.5"))
                                         .set_valor_imposto_importacao(valor("160")));
     }),
     "det", "II", "<II><vBC>1000.00</vBC><vDespAdu>20.50</vDespAdu><vII>160.00</vII><vIOF>0.00</vIOF></II>"},
    // PIS and COFINS
    {"PIS not taxed, value 5, writes 09",
     com_pis_cofins(tributacao_pis_cofins().set_grupo_tributacao_pis(
                        grupo_tributacao_pis_nt().set_cst_pis(cst_pis_cofins_nao_tributado::cst_09))),
     "det", "PIS", "<PIS><PISNT><CST>09</CST></PISNT></PIS>"},
    {"PIS by rate, differentiated",
     com_pis_cofins(tributacao_pis_cofins().set_grupo_tributacao_pis(
                        grupo_tributacao_pis_aliquota()
                            .set_cst_pis(cst_pis_cofins_aliquota::cst_02)
                            .set_valor_bc_pis(valor("1850"))
                            .set_percentual_aliquota_pis(valor("2.1"))
                            .set_valor_pis(valor("38.85")))),
     "det", "PIS",
     "<PIS><PISAliq><CST>02</CST><vBC>1850.00</vBC><pPIS>2.1000</pPIS><vPIS>38.85</vPIS></PISAliq></PIS>"},
    {"COFINS of other operations, the last CST",
     com_pis_cofins(tributacao_pis_cofins().set_grupo_tributacao_cofins(
                        grupo_tributacao_cofins_outros()
                            .set_cst_cofins(cst_pis_cofins_outras_operacoes::cst_99)
                            .set_valor_bc_cofins(valor("100"))
                            .set_percentual_aliquota_cofins(valor("3"))
                            .set_valor_cofins(valor("3")))),
     "det", "COFINS",
     "<COFINS><COFINSOutr><CST>99</CST><vBC>100.00</vBC><pCOFINS>3.0000</pCOFINS><vCOFINS>3.00</vCOFINS>"
     "</COFINSOutr></COFINS>"},
    {"PIS of other operations, value 8, writes 60",
     com_pis_cofins(tributacao_pis_cofins().set_grupo_tributacao_pis(
                        grupo_tributacao_pis_outros()
                            .set_cst_pis(cst_pis_cofins_outras_operacoes::cst_60)
                            .set_valor_bc_pis(valor("0"))
                            .set_percentual_aliquota_pis(valor("0")))),
     "det", "PISOutr", "<PISOutr><CST>60</CST><vBC>0.00</vBC><pPIS>0.0000</pPIS><vPIS>0.00</vPIS></PISOutr>"},
    {"COFINS not taxed, value 3, writes 07",
     com_pis_cofins(tributacao_pis_cofins().set_grupo_tributacao_cofins(
                        grupo_tributacao_cofins_nt().set_cst_cofins(cst_pis_cofins_nao_tributado::cst_07))),
     "det", "COFINS", "<COFINS><COFINSNT><CST>07</CST></COFINSNT></COFINS>"},
    // ISSQN
    {"ISSQN with every optional tag",
     tributar(issqn()
                  .set_valor_bc(valor("450"))
                  .set_valor_aliquota(valor("2"))
                  .set_valor_issqn(valor("9"))
                  .set_codigo_municio_de_ocorrencia(3509502)
                  .set_item_lista_servicos("14.01")
                  .set_valor_deducao(valor("10"))
                  .set_valor_outras_retencoes(valor("1"))
                  .set_valor_desconto_incondicionado(valor("2"))
                  .set_valor_desconto_condicionado(valor("3"))
                  .set_valor_retencao_iss(valor("9"))
                  .set_indicador_iss(1)
                  .set_codigo_servico("1401")
                  .set_codigo_municipio_incidencia(3509502)
                  .set_codigo_pais(1058)
                  .set_numero_processo("123/2024")
                  .set_indicador_incentivo(2)),
     "det", "ISSQN",
     "<ISSQN><vBC>450.00</vBC><vAliq>2.0000</vAliq><vISSQN>9.00</vISSQN><cMunFG>3509502</cMunFG>"
     "<cListServ>14.01</cListServ><vDeducao>10.00</vDeducao><vOutro>1.00</vOutro><vDescIncond>2.00</vDescIncond>"
     "<vDescCond>3.00</vDescCond><vISSRet>9.00</vISSRet><indISS>1</indISS><cServico>1401</cServico>"
     "<cMun>3509502</cMun><cPais>1058</cPais><nProcesso>123/2024</nProcesso><indIncentivo>2</indIncentivo></ISSQN>"},
    // transp
    {"carrier's address of street, town and state",
     no_transporte([](informacoes_transporte& t) {
         t.set_transportador(transportador().set_logradouro("Rua A").set_municipio("Lages").set_uf("SC"));
     }),
     "transp", "transporta", "<transporta><xEnder>Rua A Lages SC</xEnder><xMun>Lages</xMun><UF>SC</UF></transporta>"},
    {"carrier's address of the state alone",
     no_transporte([](informacoes_transporte& t) { t.set_transportador(transportador().set_uf("SC")); }), "transp",
     "transporta", "<transporta><xEnder>SC</xEnder><UF>SC</UF></transporta>"},
    {"carrier without address",
     no_transporte([](informacoes_transporte& t) {
         t.set_transportador(transportador().set_documento(velk::erp::cpf(38417295682)).set_razao_social("Jo"));
     }),
     "transp", "transporta", "<transporta><CPF>38417295682</CPF><xNome>Jo</xNome></transporta>"},
    {"no transport writes 9",
     no_transporte([](informacoes_transporte& t) { t.set_modalidade_frete(modalidade_frete::sem_transporte); }),
     "transp", "modFrete", "<modFrete>9</modFrete>"},
    {"the recipient's own transport writes 4",
     no_transporte([](informacoes_transporte& t) { t.set_modalidade_frete(modalidade_frete::proprio_destinatario); }),
     "transp", "modFrete", "<modFrete>4</modFrete>"},
    {"vehicle", [](nota_fiscal&) {}, "transp", "veicTransp",
     "<veicTransp><placa>BRA2E19</placa><UF>SP</UF><RNTC>045123987</RNTC></veicTransp>"},
    {"volume", [](nota_fiscal&) {}, "transp", "vol",
     "<vol><qVol>15</qVol><esp>CAIXA</esp><marca>DISTRIMED</marca><pesoL>38.500</pesoL><pesoB>41.200</pesoB></vol>"},
    // cobr
    {"the bill", [](nota_fiscal&) {}, "cobr", "fat",
     "<fat><nFat>721</nFat><vOrig>6189.50</vOrig><vDesc>0.00</vDesc><vLiq>6189.50</vLiq></fat>"},
    {"a bill of instalments only has an empty invoice",
     [](nota_fiscal& n) { n.set_cobranca(cobranca().set_duplicatas({duplicata().set_valor_duplicata(valor("10"))})); },
     "cobr", "cobr", "<cobr><fat/><dup><vDup>10.00</vDup></dup></cobr>"},
    // pag
    {"means 12 writes 99",
     pago_com(detalhes_pagamento().set_meio_pagamento(meio_pagamento::outros).set_descricao_meio_pagamento("X")), "pag",
     "detPag", "<detPag><tPag>99</tPag><xPag>X</xPag><vPag>6189.50</vPag></detPag>"},
    {"means 13 writes 16", pago_com(detalhes_pagamento().set_meio_pagamento(meio_pagamento::deposito_bancario)), "pag",
     "tPag", "<tPag>16</tPag>"},
    {"means 16, the last, writes 19",
     pago_com(detalhes_pagamento().set_meio_pagamento(meio_pagamento::programa_fidelidade)), "pag", "tPag",
     "<tPag>19</tPag>"},
    {"card of brand 27 writes 99",
     pago_com(detalhes_pagamento()
                  .set_indicador_forma_pagamento(indicador_forma_pagamento::a_vista)
                  .set_meio_pagamento(meio_pagamento::cartao_credito)
                  .set_transacao_tef(transacao_tef()
                                         .set_tipo_integracao(tipo_integracao_pagamento::nao_integrado)
                                         .set_cnpj("38061794000176")
                                         .set_bandeira(bandeira_cartao::outros)
                                         .set_numero_autorizacao("0042"))),
     "pag", "detPag",
     "<detPag><indPag>0</indPag><tPag>03</tPag><vPag>6189.50</vPag><card><tpIntegra>2</tpIntegra>"
     "<CNPJ>38061794000176</CNPJ><tBand>99</tBand><cAut>0042</cAut></card></detPag>"},
    {"card of brand 26 writes 27",
     pago_com(detalhes_pagamento()
                  .set_meio_pagamento(meio_pagamento::cartao_debito)
                  .set_transacao_tef(transacao_tef().set_bandeira(bandeira_cartao::ticket))),
     "pag", "tBand", "<tBand>27</tBand>"},
    {"no change", [](nota_fiscal&) {}, "pag", "vTroco", ""},
    {"no payment is written as without payment",
     [](nota_fiscal& n) { n.set_informacoes_pagamento(informacoes_pagamento()); }, "pag", "pag",
     "<pag><detPag><tPag>90</tPag><vPag>0.00</vPag></detPag></pag>"},
    {"card without integration type is not integrated",
     pago_com(
         detalhes_pagamento().set_meio_pagamento(meio_pagamento::cartao_debito).set_transacao_tef(transacao_tef())),
     "pag", "card", "<card><tpIntegra>2</tpIntegra></card>"},
    // closing groups
    {"marketplace",
     [](nota_fiscal& n) {
         n.set_informacoes_intermediador(
             informacoes_intermediador().set_cnpj(8931527000141).set_identificador_cadastrado("loja-oficial"));
     },
     "infIntermed", "infIntermed",
     "<infIntermed><CNPJ>08931527000141</CNPJ><idCadIntTran>loja-oficial</idCadIntTran></infIntermed>"},
    {"additional information with processes",
     [](nota_fiscal& n) {
         n.set_informacoes_adicionais(informacoes_adicionais()
                                          .set_informacoes_adicionais_fisco("Regime especial 123")
                                          .set_informacoes_complementares("")
                                          .set_grupo_processo_referenciado(
                                              {grupo_processo_referenciado().set_identificador("A1").set_indicador_da_origem(
                                                   indicador_origem_processo::outros),
                                               grupo_processo_referenciado().set_identificador("B2").set_indicador_da_origem(
                                                   indicador_origem_processo::secex_rfb)}));
     },
     "infAdic", "infAdic",
     "<infAdic><infAdFisco>Regime especial 123</infAdFisco><infCpl/><procRef><nProc>A1</nProc><indProc>9</indProc>"
     "</procRef><procRef><nProc>B2</nProc><indProc>3</indProc></procRef></infAdic>"},
    {"export",
     [](nota_fiscal& n) {
         n.set_comercio_exterior(
             informacoes_comercio_exterior().set_uf_saida("PR").set_local_embarque("PORTO DE PARANAGUA"));
     },
     "exporta", "exporta",
     "<exporta><UFSaidaPais>PR</UFSaidaPais><xLocExporta>PORTO DE PARANAGUA</xLocExporta></exporta>"},
    {"technical manager without security code", [](nota_fiscal&) {}, "infRespTec", "infRespTec",
     "<infRespTec><CNPJ>19374562000123</CNPJ><xContato>Marina Okamoto</xContato><email>fiscal@velkerp.com.br</email>"
     "<fone>1140028922</fone></infRespTec>"},
    {"technical manager with security code",
     [](nota_fiscal& n) {
         n.set_informacoes_responsavel_tecnico(n.get_informacoes_responsavel_tecnico()->set_informacoes_codigo_seguranca(
             informacoes_codigo_seguranca().set_identificador_csrt(2).set_hash_csrt("aWv6LeEM4X6u4+qBI+OuSJe/B5k=")));
     },
     "infRespTec", "idCSRT", "<idCSRT>02</idCSRT>"},
    // total
    {"totals of services and withheld taxes",
     [](nota_fiscal& n) {
         n.set_total_nfe(n.get_total_nfe()
                             .set_total_issqn(total_nfe_issqn()
                                                  .set_valor_servico(valor("450"))
                                                  .set_data_prestacao_servico(velk::core::date(20, 5, 2024))
                                                  .set_valor_iss_retido(valor("9")))
                             .set_total_nfe_retencao_tributos(total_nfe_retencao_tributos()
                                                                  .set_valor_pis_retido(valor("2.93"))
                                                                  .set_valor_base_calculo_irrf(valor("450"))
                                                                  .set_valor_irrf(valor("6.75"))
                                                                  .set_valor_bc_retencao_previdencia(valor("450"))
                                                                  .set_valor_retencao_previdencia(valor("49.5"))));
     },
     "total", "total",
     "<total><ICMSTot><vBC>3095.00</vBC><vICMS>271.80</vICMS><vICMSDeson>0.00</vICMSDeson>"
     "<vFCPUFDest>61.90</vFCPUFDest><vICMSUFDest>347.20</vICMSUFDest><vICMSUFRemet>0.00</vICMSUFRemet>"
     "<vFCP>0.00</vFCP><vBCST>0.00</vBCST><vST>0.00</vST><vFCPST>0.00</vFCPST><vFCPSTRet>0.00</vFCPSTRet>"
     "<vProd>6189.50</vProd><vFrete>0.00</vFrete><vSeg>0.00</vSeg><vDesc>0.00</vDesc><vII>0.00</vII>"
     "<vIPI>0.00</vIPI><vIPIDevol>0.00</vIPIDevol><vPIS>20.54</vPIS><vCOFINS>94.62</vCOFINS><vOutro>0.00</vOutro>"
     "<vNF>6189.50</vNF></ICMSTot><ISSQNtot><vServ>450.00</vServ><dCompet>2024-05-20</dCompet>"
     "<vISSRet>9.00</vISSRet></ISSQNtot><retTrib><vRetPIS>2.93</vRetPIS><vBCIRRF>450.00</vBCIRRF>"
     "<vIRRF>6.75</vIRRF><vBCRetPrev>450.00</vBCRetPrev><vRetPrev>49.50</vRetPrev></retTrib></total>"},
};

class escrever_valor : public testing::TestWithParam<escrita> {};

TEST_P(escrever_valor, in_the_form_of_its_tag)
{
    escrita const& caso = GetParam();
    nota_fiscal nota = velk::test::nota_nfe_completa();
    caso.alterar(nota);
    std::string const todos = velk::test::texto_dos_grupos(documento_de(nota), caso.grupo);
    ASSERT_FALSE(todos.empty()) << caso.grupo;
    EXPECT_EQ(elemento_em(todos, caso.tag), caso.esperado) << todos;
}

INSTANTIATE_TEST_SUITE_P(tags, escrever_valor, testing::ValuesIn(escritas));
INSTANTIATE_TEST_SUITE_P(impostos_e_fechamento, escrever_valor, testing::ValuesIn(escritas_impostos));

}  // namespace
