#include <velk/erp/tarn/nfe/sefaz_data/resposta/retorno_evento.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

namespace {

using nfe::detail::tipo_evento;

// What sets a family apart: the event types it accepts (a range of the
// enumeration), the text of a failure on another type, and the names under
// which nProt and tpEvento are reported when they do not convert. Two of the
// names go without the prefix "retEvento/", as callers have always matched
// them.
struct regras_familia {
    tipo_evento primeiro;
    tipo_evento ultimo;
    char const* esperado;
    char const* nome_protocolo;
    char const* nome_tipo;
};

constexpr regras_familia familias[] = {
    {tipo_evento::cancelamento, tipo_evento::cancelamento_por_substituicao, "110111 ou 110112",
     "retEvento/infEvento/nProt", "retEvento/infEvento/tpEvento"},
    {tipo_evento::carta_correcao, tipo_evento::carta_correcao, "110110", "infEvento/nProt",
     "retEvento/infEvento/tpEvento"},
    {tipo_evento::epec, tipo_evento::epec, "110140", "retEvento/infEvento/nProt", "infEvento/tpEvento"},
    {tipo_evento::confirmacao_operacao, tipo_evento::operacao_nao_realizada, "210200, 210210, 210220 ou 210240",
     "retEvento/infEvento/nProt", "retEvento/infEvento/tpEvento"},
};

}  // namespace

struct retorno_evento::dados {
    std::uint32_t codigo_status = 0;
    std::string motivo;
    core::datetime data_registro_evento;
    core::optional<chave_acesso> chave;
    core::optional<std::uint64_t> numero_protocolo;
    xml::element xml;
};

retorno_evento::retorno_evento() = default;
retorno_evento::retorno_evento(retorno_evento const& other) = default;
retorno_evento::retorno_evento(retorno_evento&& other) noexcept = default;
retorno_evento& retorno_evento::operator=(retorno_evento const& other) = default;
retorno_evento& retorno_evento::operator=(retorno_evento&& other) noexcept = default;
retorno_evento::~retorno_evento() = default;

std::uint32_t retorno_evento::get_codigo_status() const { return dados_->codigo_status; }
std::string retorno_evento::get_motivo() const { return dados_->motivo; }
core::datetime retorno_evento::get_data_registro_evento() const { return dados_->data_registro_evento; }
core::optional<chave_acesso> retorno_evento::get_chave_acesso() const { return dados_->chave; }
core::optional<std::uint64_t> retorno_evento::get_numero_protocolo() const { return dados_->numero_protocolo; }
xml::element retorno_evento::get_xml() const { return dados_->xml; }

void retorno_evento::ler(retorno_evento& destino, xml::element const& root, familia_evento familia,
                         core::result::stack& stack)
{
    regras_familia const& aceitos = familias[static_cast<int>(familia)];
    dados& fields = *destino.dados_;
    fields.xml = root;
    if (root.get_name() != "retEvento") {
        core::result::fresh<result_category::elemento_ausente>(stack, "retEvento");
        return;
    }
    auto const found = find_elements_by_path(root, {"infEvento/cStat", "infEvento/xMotivo", "infEvento/dhRegEvento",
                                                    "infEvento/chNFe", "infEvento/nProt", "infEvento/tpEvento"});
    core::optional<tipo_evento> tipo;
    if (!read_required(lookup(found, "infEvento/cStat"), "retEvento/infEvento/cStat", fields.codigo_status, stack) ||
        !read_required(lookup(found, "infEvento/xMotivo"), "retEvento/infEvento/xMotivo", fields.motivo, stack) ||
        !read_required(lookup(found, "infEvento/dhRegEvento"), "retEvento/infEvento/dhRegEvento",
                       fields.data_registro_evento, stack) ||
        !read_optional(lookup(found, "infEvento/chNFe"), "retEvento/infEvento/chNFe", fields.chave, stack) ||
        !read_optional(lookup(found, "infEvento/nProt"), aceitos.nome_protocolo, fields.numero_protocolo, stack) ||
        !read_optional(lookup(found, "infEvento/tpEvento"), aceitos.nome_tipo, tipo, stack)) {
        return;
    }
    if (tipo.has_value() && (*tipo < aceitos.primeiro || *tipo > aceitos.ultimo)) {
        core::result::fresh<result_category::tipo_evento_diferente>(stack, aceitos.esperado,
                                                lookup(found, "infEvento/tpEvento")->get_contents());
    }
}

template <familia_evento Familia>
retorno_familia<Familia> retorno_familia<Familia>::from_xml(xml::element const& root, core::result::stack& stack)
{
    retorno_familia resposta;
    ler(resposta, root, Familia, stack);
    return resposta;
}

template <familia_evento Familia>
retorno_familia<Familia> retorno_familia<Familia>::from_xml(xml::document const& documento,
                                                            core::result::stack& stack)
{
    return read_root<retorno_familia>(documento, stack);
}

template class retorno_familia<familia_evento::cancelamento>;
template class retorno_familia<familia_evento::carta_correcao>;
template class retorno_familia<familia_evento::epec_nfe>;
template class retorno_familia<familia_evento::manifestacao_destinatario>;

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
