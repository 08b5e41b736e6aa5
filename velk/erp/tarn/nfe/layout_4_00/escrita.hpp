#pragma once

// The writers of the groups of layout 4.00, used by escrever_layout_4_00. Each
// appends to `pai` one element named `tag` with the record's members in the
// order of the XML, and returns false at the first member that could not be
// written; the element is then left out. They decide nothing: what the record
// holds is written.

#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/layout_4_00.hpp>
#include <velk/xml/element.hpp>

#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool escrever(xml::element& pai, std::string_view tag, grupo::ide const& ide, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::NFref const& nfref, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::refNF const& ref, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::refNFP const& ref, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::refECF const& ref, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::emit const& emit, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::enderEmit const& endereco, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::enderDest const& endereco, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::dest const& dest, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::retirada const& retirada, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::entrega const& entrega, core::result::stack& stack);
// An entry of autXML: the element with the document inside.
bool escrever(xml::element& pai, std::string_view tag, grupo::cpf_cnpj_ou_estrangeiro const& documento,
              core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::det const& det, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::prod const& prod, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::DI const& di, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::adi const& adi, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::detExport const& detExport, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::exportInd const& exportInd, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::rastro const& rastro, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::veicProd const& veicProd, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::med const& med, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::arma const& arma, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::comb const& comb, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::CIDE const& cide, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::encerrante const& encerrante,
              core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::impostoDevol const& impostoDevol,
              core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::IPIDevol const& ipi, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::imposto const& imposto, core::result::stack& stack);
// The element ICMS with the group of the alternative it holds.
bool escrever(xml::element& pai, std::string_view tag, grupo::ICMS const& icms, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::ISSQN const& issqn, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::IPI const& ipi, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::II const& ii, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::PIS const& pis, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::PISST const& pisst, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::COFINS const& cofins, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::COFINSST const& cofinsst, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::ICMSUFDest const& icms_uf_dest,
              core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::total const& total, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::ICMSTot const& icms_tot, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::ISSQNtot const& issqn_tot, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::retTrib const& ret_trib, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::transp const& transp, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::transporta const& transporta,
              core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::retTransp const& ret_transp,
              core::result::stack& stack);
// veicTransp and each reboque.
bool escrever(xml::element& pai, std::string_view tag, grupo::veicTransp const& veiculo, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::vol const& vol, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::lacres const& lacres, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::cobr const& cobr, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::fat const& fat, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::dup const& dup, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::pag const& pag, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::detPag const& det_pag, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::card const& card, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::infIntermed const& infIntermed,
              core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::infAdic const& infAdic, core::result::stack& stack);
// An entry of obsCont or obsFisco.
bool escrever(xml::element& pai, std::string_view tag, grupo::observacao const& observacao,
              core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::procRef const& procRef, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::exporta const& exporta, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::compra const& compra, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::cana const& cana, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::forDia const& forDia, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::deduc const& deduc, core::result::stack& stack);
bool escrever(xml::element& pai, std::string_view tag, grupo::infRespTec const& infRespTec,
              core::result::stack& stack);

// The document of a party, written in its place among the group's tags.
bool escrever_documento(xml::element& pai, grupo::cnpj_ou_cpf const& documento, core::result::stack& stack);
bool escrever_documento(xml::element& pai, grupo::cpf_cnpj_ou_estrangeiro const& documento, core::result::stack& stack);

// An optional group is written when it holds a value.
template <class Registro>
bool escrever(xml::element& pai, std::string_view tag, core::optional<Registro> const& registro,
              core::result::stack& stack)
{
    return !registro || escrever(pai, tag, *registro, stack);
}

// A repeated group is written once per entry, in order.
template <class Registro>
bool escrever(xml::element& pai, std::string_view tag, std::vector<Registro> const& lista, core::result::stack& stack)
{
    for (Registro const& registro : lista) {
        if (!escrever(pai, tag, registro, stack)) {
            return false;
        }
    }
    return true;
}

// A group is written in place, as the last child of its parent
// (pai.append_element); one that could not be written whole is taken out
// again, so that the parent is left as it was.
inline bool fechar(xml::element& pai, bool escrito)
{
    if (!escrito) {
        xml::mutable_node_range filhos = pai.get_node_range();
        filhos.erase(std::prev(filhos.end()));
    }
    return escrito;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
