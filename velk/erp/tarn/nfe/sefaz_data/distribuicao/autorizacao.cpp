#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/autorizacao.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/detail/processo.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao {

namespace {

requisicao::documento_fiscal ler_documento(xml::element const& elemento, core::result::stack& stack)
{
    return requisicao::documento_fiscal::from_xml(elemento, stack);
}

resposta::protocolo_nfe ler_protocolo(xml::element const& elemento, core::result::stack& stack)
{
    return resposta::protocolo_nfe::from_xml(elemento, stack);
}

}  // namespace

autorizacao::autorizacao() : xml_("nfeProc") {}

autorizacao autorizacao::from_data(requisicao::documento_fiscal const& documento,
                                   resposta::protocolo_nfe const& protocolo, core::result::stack& stack)
{
    std::string versao;
    autorizacao processo;
    if (!requisicao::detail::escrever_campo(versao, documento.get_versao(), "autorizacao", "versao", stack) ||
        !detail::montar_processo(processo.xml_, versao, documento.get_xml(), protocolo.get_xml(), stack)) {
        return {};
    }
    return processo;
}

autorizacao autorizacao::from_xml(xml::element const& nfe, xml::element const& protocolo,
                                  core::result::stack& stack)
{
    auto const documento = ler_documento(nfe, stack);
    if (stack.has_failed()) {
        return {};
    }
    auto const resposta = ler_protocolo(protocolo, stack);
    if (stack.has_failed()) {
        return {};
    }
    return from_data(documento, resposta, stack);
}

autorizacao autorizacao::from_xml(xml::element const& nfe_proc, core::result::stack& stack)
{
    if (nfe_proc.get_name() != "nfeProc") {
        core::result::fresh<result_category::elemento_ausente>(stack, "nfeProc");
        return {};
    }
    xml::element const* nfe = detail::filho_do_processo(nfe_proc, "NFe", "nfeProc/NFe", stack);
    xml::element const* protocolo =
        nfe == nullptr ? nullptr : detail::filho_do_processo(nfe_proc, "protNFe", "nfeProc/protNFe", stack);
    if (protocolo == nullptr) {
        return {};
    }
    return from_xml(*nfe, *protocolo, stack);
}

requisicao::documento_fiscal autorizacao::get_requisicao(core::result::stack& stack) const
{
    return detail::ler_parte<requisicao::documento_fiscal>(xml_, "NFe", "nfeProc/NFe", ler_documento, stack);
}

// A missing protocol is named as a missing document: readers of the failure
// have always seen that name here.
resposta::protocolo_nfe autorizacao::get_resposta(core::result::stack& stack) const
{
    return detail::ler_parte<resposta::protocolo_nfe>(xml_, "protNFe", "nfeProc/NFe", ler_protocolo, stack);
}

xml::element autorizacao::get_xml() const { return xml_; }

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao
