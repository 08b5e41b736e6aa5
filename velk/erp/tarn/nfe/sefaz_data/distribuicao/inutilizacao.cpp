#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/inutilizacao.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/detail/processo.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao {

namespace {

// The root as the layout's schema declares it, with a capital P, though the
// failures and most stored archives call it procInutNFe: both are read.
constexpr char raiz[] = "ProcInutNFe";
constexpr char raiz_minuscula[] = "procInutNFe";

}  // namespace

struct inutilizacao::dados {
    requisicao::inutilizacao requisicao;
    resposta::inutilizacao resposta;
    xml::element xml{raiz};
};

inutilizacao::inutilizacao() = default;
inutilizacao::inutilizacao(inutilizacao const& other) = default;
inutilizacao::inutilizacao(inutilizacao&& other) noexcept = default;
inutilizacao& inutilizacao::operator=(inutilizacao const& other) = default;
inutilizacao& inutilizacao::operator=(inutilizacao&& other) noexcept = default;
inutilizacao::~inutilizacao() = default;

inutilizacao inutilizacao::from_data(requisicao::inutilizacao const& requisicao,
                                     resposta::inutilizacao const& resposta, core::result::stack& stack)
{
    std::string versao;
    inutilizacao processo;
    dados& campos = *processo.dados_;
    if (!requisicao::detail::escrever_campo(versao, requisicao.get_versao(), "inutilizacao", "versao", stack) ||
        !detail::montar_processo(campos.xml, versao, requisicao.get_xml(), resposta.get_xml(), stack)) {
        return {};
    }
    campos.requisicao = requisicao;
    campos.resposta = resposta;
    return processo;
}

inutilizacao inutilizacao::from_xml(xml::element const& elemento, xml::element const& resposta,
                                    core::result::stack& stack)
{
    auto const pedido = requisicao::inutilizacao::from_xml(elemento, stack);
    if (stack.has_failed()) {
        return {};
    }
    auto const retorno = resposta::inutilizacao::from_xml(resposta, stack);
    if (stack.has_failed()) {
        return {};
    }
    return from_data(pedido, retorno, stack);
}

inutilizacao inutilizacao::from_xml(xml::element const& proc_inut, core::result::stack& stack)
{
    if (proc_inut.get_name() != raiz && proc_inut.get_name() != raiz_minuscula) {
        core::result::fresh<result_category::elemento_ausente>(stack, "procInutNFe");
        return {};
    }
    xml::element const* pedido = detail::filho_do_processo(proc_inut, "inutNFe", "procInutNFe/inutNFe", stack);
    xml::element const* retorno =
        pedido == nullptr ? nullptr
                          : detail::filho_do_processo(proc_inut, "retInutNFe", "procInutNFe/retInutNFe", stack);
    if (retorno == nullptr) {
        return {};
    }
    inutilizacao processo = from_xml(*pedido, *retorno, stack);
    if (stack.has_failed()) {
        return {};
    }
    // The archive as it was stored, not as it would be made again.
    processo.dados_->xml = proc_inut;
    return processo;
}

requisicao::inutilizacao inutilizacao::get_requisicao() const { return dados_->requisicao; }
resposta::inutilizacao inutilizacao::get_resposta() const { return dados_->resposta; }
xml::element inutilizacao::get_xml() const { return dados_->xml; }

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao
