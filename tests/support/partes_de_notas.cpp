#include <support/partes_de_notas.hpp>

#include <support/notas_fiscais.hpp>

namespace velk::test {

using namespace erp::fiscal;

endereco local(char const* logradouro, char const* numero, char const* bairro, std::uint32_t municipio,
               char const* nome_municipio, char const* uf, std::uint32_t cep)
{
    return endereco()
        .set_logradouro(logradouro)
        .set_numero_endereco(numero)
        .set_bairro(bairro)
        .set_ibge_municipio(municipio)
        .set_nome_municipio(nome_municipio)
        .set_uf(uf)
        .set_cep(cep)
        .set_ibge_pais(1058)
        .set_pais("Brasil");
}

// The same commercial and taxable unit, quantity and price.
produto item(char const* codigo, char const* gtin, char const* descricao, std::uint32_t ncm, std::uint16_t cfop,
             char const* unidade, char const* quantidade, char const* preco, char const* total)
{
    return produto()
        .set_codigo_produto(codigo)
        .set_codigo_de_barras(gtin)
        .set_descricao(descricao)
        .set_ncm(ncm)
        .set_cfop(cfop)
        .set_unidade_comercial(unidade)
        .set_quantidade_comercial(valor(quantidade))
        .set_valor_unitario_comercial(valor(preco))
        .set_valor_total_bruto(valor(total))
        .set_codigo_de_barras_tributavel(gtin)
        .set_unidade_tributavel(unidade)
        .set_quantidade_tributavel(valor(quantidade))
        .set_valor_unitario_tributavel(valor(preco))
        .set_indicador_item_compoe_valor_total(indicador_total::compoe);
}

tributacao_pis_cofins pis_cofins_aliquota(char const* base, char const* pis, char const* aliquota_pis,
                                          char const* cofins, char const* aliquota_cofins)
{
    return tributacao_pis_cofins()
        .set_grupo_tributacao_pis(grupo_tributacao_pis_aliquota()
                                      .set_cst_pis(cst_pis_cofins_aliquota::cst_01)
                                      .set_valor_bc_pis(valor(base))
                                      .set_percentual_aliquota_pis(valor(aliquota_pis))
                                      .set_valor_pis(valor(pis)))
        .set_grupo_tributacao_cofins(grupo_tributacao_cofins_aliquota()
                                         .set_cst_cofins(cst_pis_cofins_aliquota::cst_01)
                                         .set_valor_bc_cofins(valor(base))
                                         .set_percentual_aliquota_cofins(valor(aliquota_cofins))
                                         .set_valor_cofins(valor(cofins)));
}

tributacao_pis_cofins pis_cofins_nao_tributado(cst_pis_cofins_nao_tributado cst)
{
    return tributacao_pis_cofins()
        .set_grupo_tributacao_pis(grupo_tributacao_pis_nt().set_cst_pis(cst))
        .set_grupo_tributacao_cofins(grupo_tributacao_cofins_nt().set_cst_cofins(cst));
}

tributacao_pis_cofins pis_cofins_outras(cst_pis_cofins_outras_operacoes cst, char const* base, char const* pis,
                                        char const* aliquota_pis, char const* cofins, char const* aliquota_cofins)
{
    return tributacao_pis_cofins()
        .set_grupo_tributacao_pis(grupo_tributacao_pis_outros()
                                      .set_cst_pis(cst)
                                      .set_valor_bc_pis(valor(base))
                                      .set_percentual_aliquota_pis(valor(aliquota_pis))
                                      .set_valor_pis(valor(pis)))
        .set_grupo_tributacao_cofins(grupo_tributacao_cofins_outros()
                                         .set_cst_cofins(cst)
                                         .set_valor_bc_cofins(valor(base))
                                         .set_percentual_aliquota_cofins(valor(aliquota_cofins))
                                         .set_valor_cofins(valor(cofins)));
}

// Simples Nacional: PIS and COFINS go in the monthly payment.
tributacao_pis_cofins pis_cofins_simples()
{
    return pis_cofins_outras(cst_pis_cofins_outras_operacoes::cst_99, "0.00", "0.00", "0.00", "0.00", "0.00");
}

grupo_tributacao_icms_00 icms_00(char const* base, char const* aliquota, char const* icms, origem_mercadoria origem)
{
    return grupo_tributacao_icms_00()
        .set_origem_mercadoria(origem)
        .set_cst(cst_icms::cst_00)
        .set_modalidade_bc_icms(modalidade_bc_icms::valor_operacao)
        .set_valor_bc_icms(valor(base))
        .set_aliquota_icms(valor(aliquota))
        .set_valor_icms(valor(icms));
}

informacoes_responsavel_tecnico responsavel_tecnico()
{
    return informacoes_responsavel_tecnico()
        .set_cnpj("19374562000123")
        .set_nome_pessoa_contatada("Marina Okamoto")
        .set_email("fiscal@velkerp.com.br")
        .set_telefone("1140028922");
}

}  // namespace velk::test
