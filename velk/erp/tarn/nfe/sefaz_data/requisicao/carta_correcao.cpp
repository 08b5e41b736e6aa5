#include <velk/erp/tarn/nfe/sefaz_data/requisicao/carta_correcao.hpp>

#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/det_evento.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

namespace {

// The conditions of use that every correction letter carries, in the form
// without accents that the layout accepts beside the accented one.
constexpr char condicoes_de_uso[] =
    "A Carta de Correcao e disciplinada pelo paragrafo 1o-A do art. 7o do Convenio S/N, de 15 de dezembro de 1970 "
    "e pode ser utilizada para regularizacao de erro ocorrido na emissao de documento fiscal, desde que o erro nao "
    "esteja relacionado com: I - as variaveis que determinam o valor do imposto tais como: base de calculo, "
    "aliquota, diferenca de preco, quantidade, valor da operacao ou da prestacao; II - a correcao de dados "
    "cadastrais que implique mudanca do remetente ou do destinatario; III - a data de emissao ou de saida.";

}  // namespace

struct carta_correcao::dados {
    std::string correcao;
    xml::element xml;
};

carta_correcao::carta_correcao() = default;
carta_correcao::carta_correcao(carta_correcao const& other) = default;
carta_correcao::carta_correcao(carta_correcao&& other) noexcept = default;
carta_correcao& carta_correcao::operator=(carta_correcao const& other) = default;
carta_correcao& carta_correcao::operator=(carta_correcao&& other) noexcept = default;
carta_correcao::~carta_correcao() = default;

carta_correcao carta_correcao::from_data(std::string const& correcao, core::result::stack& stack)
{
    carta_correcao result;
    xml::element& det_evento = result.dados_->xml;
    if (!detail::novo_det_evento(det_evento, "Carta de Correcao", stack)) {
        return carta_correcao();
    }
    detail::append_text(det_evento, "xCorrecao", correcao);
    detail::append_text(det_evento, "xCondUso", condicoes_de_uso);
    result.dados_->correcao = correcao;
    return result;
}

carta_correcao carta_correcao::from_xml(xml::element const& det_evento, core::result::stack& stack)
{
    if (!detail::root_is(det_evento, "detEvento", stack)) {
        return carta_correcao();
    }
    auto const found = find_elements_by_path(det_evento, {"xCorrecao"});
    carta_correcao result;
    if (!read_required(lookup(found, "xCorrecao"), "detEvento/xCorrecao", result.dados_->correcao, stack)) {
        return carta_correcao();
    }
    result.dados_->xml = det_evento;
    return result;
}

carta_correcao carta_correcao::from_xml(xml::document const& documento, core::result::stack& stack)
{
    return read_root<carta_correcao>(documento, stack);
}

std::string carta_correcao::get_correcao() const { return dados_->correcao; }
xml::element carta_correcao::get_xml() const { return dados_->xml; }

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
