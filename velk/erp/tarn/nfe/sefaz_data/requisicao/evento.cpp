#include <velk/erp/tarn/nfe/sefaz_data/requisicao/evento.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/detail/assinatura.hpp>
#include <velk/erp/tarn/nfe/namespace_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/det_evento.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

namespace {

constexpr char request_name[] = "evento";
// cOrgao of the events registered by the national environment.
constexpr char orgao_nacional[] = "91";

using nfe::detail::tipo_evento;

// The Id of infEvento and the reference of the signature: "ID", the six
// digits of the type, the 44 of the key and the sequence in exactly two, so
// that a sequence above 99 has no Id.
bool escrever_id(std::string& id, tipo_evento tipo, chave_acesso const& chave, std::uint32_t sequencia,
                 core::result::stack& stack)
{
    id = "ID";
    if (!detail::escrever_campo(id, tipo, request_name, "tipo_evento", stack) ||
        !detail::escrever_campo(id, chave, request_name, "chave_acesso", stack)) {
        return false;
    }
    if (sequencia > 99) {
        core::result::chain<core::converter_result_category::invalid_value>(stack);
        core::result::chain<result_category::valor_requisicao_invalido>(stack, request_name, "sequencia");
        return false;
    }
    if (sequencia < 10) {
        id += '0';
    }
    return detail::escrever_campo(id, sequencia, request_name, "sequencia", stack);
}

// The lengths of the pieces of the Id.
constexpr std::size_t id_prefix = 2;
constexpr std::size_t tipo_length = 6;
constexpr std::size_t chave_length = 44;

}  // namespace

struct evento::dados {
    chave_acesso chave;
    core::datetime data_hora_evento;
    ambiente tipo_ambiente = ambiente::homologacao;
    tipo_evento tipo = tipo_evento::cancelamento;
    std::uint32_t sequencia = 0;
    informacoes payload;
    xml::element xml;

    // What every from_data does: the fields, then the tree around the
    // payload's detEvento. `orgao` is the state of cOrgao; none for the
    // national environment.
    static evento criar(informacoes const& payload, xml::element const& det_evento, chave_acesso const& chave,
                        ambiente tipo_ambiente, core::datetime const& data_hora_evento, tipo_evento tipo,
                        std::uint32_t sequencia, core::optional<estado> const& orgao, core::result::stack& stack);

    bool montar(xml::element const& det_evento, core::optional<estado> const& orgao, core::result::stack& stack);
};

evento evento::dados::criar(informacoes const& payload, xml::element const& det_evento, chave_acesso const& chave,
                            ambiente tipo_ambiente, core::datetime const& data_hora_evento, tipo_evento tipo,
                            std::uint32_t sequencia, core::optional<estado> const& orgao,
                            core::result::stack& stack)
{
    evento result;
    dados& fields = *result.dados_;
    fields.chave = chave;
    fields.data_hora_evento = data_hora_evento;
    fields.tipo_ambiente = tipo_ambiente;
    fields.tipo = tipo;
    fields.sequencia = sequencia;
    fields.payload = payload;
    if (!fields.montar(det_evento, orgao, stack)) {
        return evento();
    }
    return result;
}

bool evento::dados::montar(xml::element const& det_evento, core::optional<estado> const& orgao,
                           core::result::stack& stack)
{
    xml::element root("evento");
    if (!root.append_namespace(xml::namespace_id("", namespace_nfe), stack) ||
        !root.append_attribute(xml::attribute("versao", detail::versao_evento), stack)) {
        return false;
    }
    std::string id;
    std::string orgao_text;
    std::string ambiente_text;
    std::string sequencia_text;
    std::string data_hora_text;
    if (!escrever_id(id, tipo, chave, sequencia, stack)) {
        return false;
    }
    if (!orgao.has_value()) {
        orgao_text = orgao_nacional;
    } else if (!detail::escrever_campo(orgao_text, *orgao, request_name, "orgao", stack)) {
        return false;
    }
    if (!detail::escrever_ambiente(ambiente_text, tipo_ambiente, request_name, stack) ||
        !detail::escrever_campo(sequencia_text, sequencia, request_name, "sequencia", stack) ||
        !detail::escrever_campo(data_hora_text, data_hora_evento, request_name, "dh_evento", stack)) {
        return false;
    }
    xml::element inf_evento("infEvento");
    if (!inf_evento.append_attribute(xml::attribute("Id", id), stack)) {
        return false;
    }
    detail::append_text(inf_evento, "cOrgao", orgao_text);
    detail::append_text(inf_evento, "tpAmb", ambiente_text);
    detail::append_text(inf_evento, "CNPJ", chave.get_cnpj());
    detail::append_text(inf_evento, "chNFe", id.substr(id_prefix + tipo_length, chave_length));
    detail::append_text(inf_evento, "dhEvento", data_hora_text);
    detail::append_text(inf_evento, "tpEvento", id.substr(id_prefix, tipo_length));
    detail::append_text(inf_evento, "nSeqEvento", sequencia_text);
    detail::append_text(inf_evento, "verEvento", detail::versao_evento);
    inf_evento.append_node(det_evento);
    root.append_node(std::move(inf_evento));
    xml = std::move(root);
    return true;
}

evento::evento() = default;
evento::evento(evento const& other) = default;
evento::evento(evento&& other) noexcept = default;
evento& evento::operator=(evento const& other) = default;
evento& evento::operator=(evento&& other) noexcept = default;
evento::~evento() = default;

evento evento::from_data(cancelamento const& payload, chave_acesso const& chave, ambiente tipo_ambiente,
                         core::datetime const& data_hora_evento, core::result::stack& stack)
{
    tipo_evento const tipo = payload.get_tipo_cancelamento() == tipo_cancelamento::normal
                                 ? tipo_evento::cancelamento
                                 : tipo_evento::cancelamento_por_substituicao;
    return dados::criar(payload, payload.get_xml(), chave, tipo_ambiente, data_hora_evento, tipo, 1,
                        chave.get_estado(), stack);
}

evento evento::from_data(carta_correcao const& payload, chave_acesso const& chave, ambiente tipo_ambiente,
                         core::datetime const& data_hora_evento, unsigned int sequencia, core::result::stack& stack)
{
    return dados::criar(payload, payload.get_xml(), chave, tipo_ambiente, data_hora_evento,
                        tipo_evento::carta_correcao, sequencia, chave.get_estado(), stack);
}

evento evento::from_data(epec_nfe const& payload, chave_acesso const& chave, ambiente tipo_ambiente,
                         core::datetime const& data_hora_evento, core::result::stack& stack)
{
    return dados::criar(payload, payload.get_xml(), chave, tipo_ambiente, data_hora_evento, tipo_evento::epec, 1,
                        core::optional<estado>(), stack);
}

evento evento::from_data(manifestacao_destinatario const& payload, chave_acesso const& chave,
                         ambiente tipo_ambiente, core::datetime const& data_hora_evento, core::result::stack& stack)
{
    int const manifestacao = static_cast<int>(payload.get_tipo_manifestacao());
    if (manifestacao < 0 || manifestacao > 3) {
        core::result::fresh<result_category::tipo_evento_diferente>(stack, "Manifestação do destinatário", "Desconhecido");
        return evento();
    }
    auto const tipo = static_cast<tipo_evento>(static_cast<int>(tipo_evento::confirmacao_operacao) + manifestacao);
    return dados::criar(payload, payload.get_xml(), chave, tipo_ambiente, data_hora_evento, tipo, 1,
                        core::optional<estado>(), stack);
}

namespace {

// The payload of an event read back, by its type.
evento::informacoes ler_payload(xml::element const& det_evento, tipo_evento tipo, core::result::stack& stack)
{
    switch (tipo) {
    case tipo_evento::cancelamento:
        return cancelamento::from_xml(det_evento, tipo_cancelamento::normal, stack);
    case tipo_evento::cancelamento_por_substituicao:
        return cancelamento::from_xml(det_evento, tipo_cancelamento::substituicao, stack);
    case tipo_evento::carta_correcao:
        return carta_correcao::from_xml(det_evento, stack);
    case tipo_evento::epec:
        return epec_nfe::from_xml(det_evento, stack);
    default:
        break;
    }
    // The four manifestations, in the order of their types.
    auto const manifestacao = static_cast<manifestacao_destinatario::tipo_manifestacao>(
        static_cast<int>(tipo) - static_cast<int>(tipo_evento::confirmacao_operacao));
    return manifestacao_destinatario::from_xml(det_evento, manifestacao, stack);
}

}  // namespace

evento evento::from_xml(xml::element const& elemento, core::result::stack& stack)
{
    if (elemento.get_name() != "evento") {
        core::result::fresh<result_category::elemento_ausente>(stack, "evento");
        return evento();
    }
    auto const found = find_elements_by_path(
        elemento, {"infEvento/tpAmb", "infEvento/chNFe", "infEvento/dhEvento", "infEvento/tpEvento",
                   "infEvento/nSeqEvento", "infEvento/detEvento"});
    evento result;
    dados& fields = *result.dados_;
    if (!read_required(lookup(found, "infEvento/tpAmb"), "evento/infEvento/tpAmb", fields.tipo_ambiente, stack)) {
        return evento();
    }
    xml::element const* chave = lookup(found, "infEvento/chNFe");
    if (chave == nullptr) {
        core::result::fresh<result_category::elemento_ausente>(stack, "evento/infEvento/chNFe");
        return evento();
    }
    // A key that does not read is reported as the attribute Id, as callers
    // have always matched it.
    if (!core::read_value(fields.chave, chave->get_contents(), stack)) {
        core::result::chain<result_category::valor_atributo_invalido>(stack, "evento/infEvento/Id", chave->get_contents());
        return evento();
    }
    if (!read_required(lookup(found, "infEvento/dhEvento"), "evento/infEvento/dhEvento", fields.data_hora_evento,
                       stack) ||
        !read_required(lookup(found, "infEvento/tpEvento"), "evento/infEvento/tpEvento", fields.tipo, stack) ||
        !read_required(lookup(found, "infEvento/nSeqEvento"), "evento/infEvento/nSeqEvento", fields.sequencia,
                       stack)) {
        return evento();
    }
    xml::element const* det_evento = lookup(found, "infEvento/detEvento");
    if (det_evento == nullptr) {
        core::result::fresh<result_category::elemento_ausente>(stack, "evento/infEvento/detEvento");
        return evento();
    }
    fields.payload = ler_payload(*det_evento, fields.tipo, stack);
    if (stack.has_failed()) {
        return evento();
    }
    fields.xml = elemento;
    return result;
}

evento evento::from_xml(xml::document const& documento, core::result::stack& stack)
{
    return read_root<evento>(documento, stack);
}

void evento::assinar(cryptography::pkcs12 const& certificado, core::result::stack& stack)
{
    dados const& fields = *dados_;
    auto const identificador = [&fields](std::string& id, core::result::stack& pieces) {
        return escrever_id(id, fields.tipo, fields.chave, fields.sequencia, pieces);
    };
    nfe::detail::assinar_raiz(dados_->xml, identificador, certificado, stack);
}

chave_acesso evento::get_chave_acesso() const { return dados_->chave; }
ambiente evento::get_ambiente() const { return dados_->tipo_ambiente; }
core::datetime evento::get_data_hora_evento() const { return dados_->data_hora_evento; }
tipo_evento evento::get_tipo_evento() const { return dados_->tipo; }
std::uint32_t evento::get_sequencia() const { return dados_->sequencia; }
evento::informacoes evento::get_informacoes_evento() const { return dados_->payload; }
xml::element evento::get_xml() const { return dados_->xml; }

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
