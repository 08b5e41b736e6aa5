#pragma once

// Parts of notes as issuers fill them, shared by the notes of the tests.

#include <velk/erp/fiscal/nota_fiscal.hpp>

#include <cstdint>

namespace velk::test {

using erp::fiscal::cst_pis_cofins_nao_tributado;
using erp::fiscal::cst_pis_cofins_outras_operacoes;
using erp::fiscal::origem_mercadoria;

// An address in Brazil.
erp::fiscal::endereco local(char const* logradouro, char const* numero, char const* bairro, std::uint32_t municipio,
                            char const* nome_municipio, char const* uf, std::uint32_t cep);

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

}  // namespace velk::test
