#pragma once

// The builders of the groups of layout 4.00, used by montar_layout_4_00. Each
// reads one part of the fiscal model into its record, in the order the tags
// are read, and returns false at the first value it refuses, with the refusal
// on top of the stack.

#include <velk/core/converter.hpp>
#include <velk/core/result/report.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/fiscal/nota_fiscal.hpp>
#include <velk/erp/tarn/nfe/detail/ler_documento.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/layout_4_00.hpp>
#include <velk/erp/tarn/nfe/processar_nota_result_category.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool montar_ide(fiscal::nota_fiscal const& nota, grupo::ide& ide, core::result::stack& stack);
bool montar_emit(fiscal::emitente const& emitente, grupo::emit& emit, core::result::stack& stack);
bool montar_dest(fiscal::destinatario const& destinatario, grupo::dest& dest, core::result::stack& stack);
bool montar_entrega(fiscal::local_entrega const& local, grupo::entrega& entrega, core::result::stack& stack);
bool montar_autXML(fiscal::autorizacao_acesso_xml const& autorizacao, grupo::cpf_cnpj_ou_estrangeiro& autXML,
                   core::result::stack& stack);
// prod, imposto, impostoDevol and infAdProd of one item; nItem is the caller's.
bool montar_det(fiscal::produto const& produto, grupo::det& det, core::result::stack& stack);
bool montar_prod(fiscal::produto const& produto, grupo::prod& prod, core::result::stack& stack);
bool montar_imposto(fiscal::produto const& produto, grupo::imposto& imposto, core::result::stack& stack);
bool montar_ICMS(fiscal::grupo_tributacao_icms const& tributacao, grupo::ICMS& icms, core::result::stack& stack);
bool montar_IPI(fiscal::produto const& produto, fiscal::tributacao_ipi const& tributacao, grupo::IPI& ipi,
                core::result::stack& stack);
bool montar_PIS(fiscal::grupo_tributacao_pis const& tributacao, grupo::PIS& pis, core::result::stack& stack);
bool montar_COFINS(fiscal::grupo_tributacao_cofins const& tributacao, grupo::COFINS& cofins,
                   core::result::stack& stack);
bool montar_total(fiscal::total_nfe const& total_nfe, grupo::total& total, core::result::stack& stack);
bool montar_transp(fiscal::informacoes_transporte const& transporte, grupo::transp& transp, core::result::stack& stack);
bool montar_cobr(fiscal::cobranca const& cobranca, grupo::cobr& cobr, core::result::stack& stack);
bool montar_pag(fiscal::informacoes_pagamento const& pagamento, grupo::pag& pag, core::result::stack& stack);
bool montar_infIntermed(fiscal::informacoes_intermediador const& intermediador, grupo::infIntermed& infIntermed,
                        core::result::stack& stack);
bool montar_infAdic(fiscal::informacoes_adicionais const& adicionais, grupo::infAdic& infAdic,
                    core::result::stack& stack);
bool montar_exporta(fiscal::informacoes_comercio_exterior const& comercio_exterior, grupo::exporta& exporta,
                    core::result::stack& stack);
bool montar_infRespTec(fiscal::informacoes_responsavel_tecnico const& responsavel, grupo::infRespTec& infRespTec,
                       core::result::stack& stack);

// The refusals, by name: recusar<codigo::serie_invalida>.
using codigo = processar_nota_result_category;

// Pushes refusal `Codigo` on top of the stack and gives false.
template <auto const& Codigo, class... Detalhe>
bool recusar(core::result::stack& stack, Detalhe&&... detalhe)
{
    core::result::chain<Codigo>(stack, std::forward<Detalhe>(detalhe)...);
    return false;
}

// A value the layout requires and the model may leave absent. When absent it
// is refused with code `Codigo` and the sentence that names the tag; the
// missing bases and tax values of ICMS go through their own helpers, which
// report on a fresh stack.
template <auto const& Codigo>
bool exigir(core::optional<core::decimal> const& valor, core::decimal& destino, char const* argumento,
            core::result::stack& stack)
{
    if (valor) {
        destino = *valor;
        return true;
    }
    if constexpr (Codigo.value == codigo::base_icms_invalida.value) {
        obrigatorio_base(stack, argumento);
    } else if constexpr (Codigo.value == codigo::valor_icms_invalido.value) {
        obrigatorio_valor(stack, argumento);
    } else {
        core::result::chain<Codigo>(stack, std::string(argumento));
    }
    return false;
}

// A value the layout writes even when the model leaves it absent: then the
// record keeps its default, zero.
inline void aberto(core::optional<core::decimal> const& valor, core::decimal& destino)
{
    if (valor) {
        destino = *valor;
    }
}

// An enumeration of the model through the table of its codes in the layout,
// indexed by the raw value. A value beyond the table is refused with code
// `Codigo` and the raw value.
template <auto const& Codigo, class Enumeracao, class Codigo_layout, std::size_t N, class Destino>
bool mapear(Enumeracao valor, Codigo_layout const (&tabela)[N], Destino& destino, core::result::stack& stack)
{
    auto const bruto = static_cast<unsigned int>(valor);
    if (bruto >= N) {
        return recusar<Codigo>(stack, bruto);
    }
    destino = tabela[bruto];
    return true;
}

// A number that the model keeps as text. A text that is no number is refused
// with code `Codigo` and the text, above the converter's failure.
template <auto const& Codigo, class Inteiro>
bool ler_numero(std::string const& texto, Inteiro& destino, core::result::stack& stack)
{
    return core::read_value(destino, texto, stack) || recusar<Codigo>(stack, texto);
}

// The CNPJ or CPF of a party into the alternative of its one-of; on failure
// the readers' items are on the stack and the caller adds its code.
template <class Documento>
bool ler_documento_cnpj(std::string const& texto, Documento& documento, core::result::stack& stack)
{
    std::uint64_t numero = 0;
    if (!detail::ler_cnpj(texto, numero, stack)) {
        return false;
    }
    documento = grupo::CNPJ{numero};
    return true;
}

template <class Documento>
bool ler_documento_cpf(std::string const& texto, Documento& documento, core::result::stack& stack)
{
    std::uint64_t numero = 0;
    if (!detail::ler_cpf(texto, numero, stack)) {
        return false;
    }
    documento = grupo::CPF{numero};
    return true;
}

// The street part of an address, the same in every group that has one.
template <class Registro>
void montar_logradouro(fiscal::endereco const& endereco, Registro& registro)
{
    registro.xLgr = endereco.get_logradouro();
    registro.nro = endereco.get_numero_endereco();
    registro.xCpl = endereco.get_complemento();
    registro.xBairro = endereco.get_bairro();
    registro.cMun = endereco.get_ibge_municipio();
    registro.xMun = endereco.get_nome_municipio();
    registro.UF = endereco.get_uf();
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
