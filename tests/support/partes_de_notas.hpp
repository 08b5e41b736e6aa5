#pragma once

// Parts of notes as issuers fill them, shared by the notes of the tests.

#include <velk/core/date.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/nota_fiscal.hpp>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velk::test {

using erp::fiscal::cst_pis_cofins_nao_tributado;
using erp::fiscal::cst_pis_cofins_outras_operacoes;
using erp::fiscal::origem_mercadoria;

// The check digit of an access key, from its first 43 digits.
char digito_chave(std::string_view primeiros_43);

// The access key of a note, with its check digit: state code, year and
// month, issuer's CNPJ, model, series, number, the random code, and the
// emission type as tag tpEmis writes it (1 for a note issued normally).
std::string chave_acesso(unsigned uf, unsigned ano_mes, std::string const& cnpj, unsigned modelo, unsigned serie,
                         unsigned numero, unsigned codigo, unsigned tp_emis = 1);

// The note with another number and random code (its own when 0), and the
// key made anew from them.
erp::fiscal::nota_fiscal renumbered(erp::fiscal::nota_fiscal nota, unsigned number, unsigned code = 0);

// An address in Brazil.
erp::fiscal::endereco local(char const* logradouro, char const* numero, char const* bairro, std::uint32_t municipio,
                            char const* nome_municipio, char const* uf, std::uint32_t cep);

erp::fiscal::emitente empresa(char const* cnpj, char const* razao_social, char const* fantasia,
                              erp::fiscal::endereco const& sede, char const* telefone, char const* ie,
                              erp::fiscal::regime_tributario regime);

// A company that pays ICMS, registered in its state.
erp::fiscal::destinatario contribuinte(char const* cnpj, char const* razao_social, erp::fiscal::endereco const& sede,
                                       char const* ie);

// The same commercial and taxable unit, quantity and price.
erp::fiscal::produto item(char const* codigo, char const* gtin, char const* descricao, std::uint32_t ncm,
                          std::uint16_t cfop, char const* unidade, char const* quantidade, char const* preco,
                          char const* total);

// PIS and COFINS on a base and a rate, with CST 01.
erp::fiscal::tributacao_pis_cofins pis_cofins_aliquota(char const* base, char const* pis, char const* aliquota_pis,
                                                       char const* cofins, char const* aliquota_cofins);

// PIS and COFINS not taxed, with the same CST.
erp::fiscal::tributacao_pis_cofins pis_cofins_nao_tributado(cst_pis_cofins_nao_tributado cst);

// PIS and COFINS of other operations, with the same CST.
erp::fiscal::tributacao_pis_cofins pis_cofins_outras(cst_pis_cofins_outras_operacoes cst, char const* base,
                                                     char const* pis, char const* aliquota_pis, char const* cofins,
                                                     char const* aliquota_cofins);

// Simples Nacional: PIS and COFINS go in the monthly payment.
erp::fiscal::tributacao_pis_cofins pis_cofins_simples();

// ICMS in full on the value of the operation.
erp::fiscal::grupo_tributacao_icms_00 icms_00(char const* base, char const* aliquota, char const* icms,
                                              origem_mercadoria origem = origem_mercadoria::nacional);

// The technical manager of the issuing program, without security code.
erp::fiscal::informacoes_responsavel_tecnico responsavel_tecnico();

erp::fiscal::detalhes_pagamento pagamento(erp::fiscal::meio_pagamento meio, char const* quantia);

// Paid at once by card; the acquirer's CNPJ where the terminal gives it.
erp::fiscal::detalhes_pagamento cartao(erp::fiscal::meio_pagamento meio, char const* quantia,
                                       erp::fiscal::tipo_integracao_pagamento integracao,
                                       erp::fiscal::bandeira_cartao bandeira, char const* autorizacao,
                                       char const* cnpj = nullptr);

erp::fiscal::informacoes_pagamento pago_com(std::vector<erp::fiscal::detalhes_pagamento> pagamentos,
                                            core::optional<char const*> troco = {});

// The invoice and its instalments of a note sold on credit.
erp::fiscal::cobranca fatura(char const* numero, char const* total, std::vector<erp::fiscal::duplicata> parcelas);
erp::fiscal::duplicata parcela(char const* numero, core::date vencimento, char const* quantia);

struct identificacao {
    unsigned uf;  // IBGE code of the issuer's state
    unsigned modelo;
    unsigned numero;
    unsigned codigo;
    int ano;
    unsigned mes;
    unsigned dia;
    int hora;
    unsigned minuto;
    std::uint32_t municipio;
    char const* natureza;
};

// The head of a note: a sale inside the state, in homologation, its key made
// from the identification; an NFC-e to a consumer in the shop, an NF-e to a
// company; no transport, the technical manager without security code.
erp::fiscal::nota_fiscal nota(identificacao const& id, erp::fiscal::emitente const& emitente);

}  // namespace velk::test
