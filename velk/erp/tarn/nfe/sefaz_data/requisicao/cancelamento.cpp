#include <velk/erp/tarn/nfe/sefaz_data/requisicao/cancelamento.hpp>

#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/det_evento.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

struct cancelamento::dados {
    std::uint64_t protocolo_autorizacao = 0;
    std::string justificativa;
    core::optional<std::uint16_t> codigo_orgao_autor;
    core::optional<std::string> versao_aplicativo;
    core::optional<chave_acesso> chave_acesso_substituta;
    tipo_cancelamento tipo = tipo_cancelamento::normal;
    xml::element xml;
};

cancelamento::cancelamento() = default;
cancelamento::cancelamento(cancelamento const& other) = default;
cancelamento::cancelamento(cancelamento&& other) noexcept = default;
cancelamento& cancelamento::operator=(cancelamento const& other) = default;
cancelamento& cancelamento::operator=(cancelamento&& other) noexcept = default;
cancelamento::~cancelamento() = default;

cancelamento cancelamento::from_data(std::string const& justificativa, unsigned long long protocolo,
                                     core::result::stack& stack)
{
    xml::element det_evento;
    std::string protocolo_text;
    if (!detail::novo_det_evento(det_evento, "Cancelamento", stack) ||
        !detail::escrever_campo(protocolo_text, protocolo, "cancelamento", "protocolo_autorizacao", stack)) {
        return cancelamento();
    }
    detail::append_text(det_evento, "nProt", protocolo_text);
    detail::append_text(det_evento, "xJust", justificativa);

    cancelamento result;
    result.dados_->protocolo_autorizacao = protocolo;
    result.dados_->justificativa = justificativa;
    result.dados_->xml = std::move(det_evento);
    return result;
}

cancelamento cancelamento::from_data(std::string const& justificativa, unsigned long long protocolo,
                                     unsigned short codigo_orgao_autor, std::string const& versao_aplicativo,
                                     chave_acesso const& substituta, core::result::stack& stack)
{
    constexpr char request_name[] = "cancelamento_substituicao";
    xml::element det_evento;
    std::string orgao_text;
    std::string protocolo_text;
    std::string substituta_text;
    if (!detail::novo_det_evento(det_evento, "Cancelamento por substituicao", stack) ||
        !detail::escrever_campo(orgao_text, codigo_orgao_autor, request_name, "orgao_autor", stack) ||
        !detail::escrever_campo(protocolo_text, protocolo, request_name, "protocolo_autorizacao", stack) ||
        !detail::escrever_campo(substituta_text, substituta, request_name, "chave_substituta", stack)) {
        return cancelamento();
    }
    detail::append_text(det_evento, "cOrgaoAutor", orgao_text);
    // The author is always the issuer of the note.
    detail::append_text(det_evento, "tpAutor", "1");
    detail::append_text(det_evento, "verAplic", versao_aplicativo);
    detail::append_text(det_evento, "nProt", protocolo_text);
    detail::append_text(det_evento, "xJust", justificativa);
    detail::append_text(det_evento, "chNFeRef", substituta_text);

    cancelamento result;
    dados& fields = *result.dados_;
    fields.protocolo_autorizacao = protocolo;
    fields.justificativa = justificativa;
    fields.codigo_orgao_autor = codigo_orgao_autor;
    fields.versao_aplicativo = versao_aplicativo;
    fields.chave_acesso_substituta = substituta;
    fields.tipo = tipo_cancelamento::substituicao;
    fields.xml = std::move(det_evento);
    return result;
}

cancelamento cancelamento::from_xml(xml::element const& det_evento, tipo_cancelamento tipo,
                                    core::result::stack& stack)
{
    if (!detail::root_is(det_evento, "detEvento", stack)) {
        return cancelamento();
    }
    auto const found =
        find_elements_by_path(det_evento, {"cOrgaoAutor", "tpAutor", "verAplic", "chNFeRef", "nProt", "xJust"});
    cancelamento result;
    dados& fields = *result.dados_;
    fields.tipo = tipo;
    if (tipo == tipo_cancelamento::substituicao) {
        std::string autor;
        if (!read_optional(lookup(found, "cOrgaoAutor"), "detEvento/cOrgaoAutor", fields.codigo_orgao_autor, stack) ||
            !read_required(lookup(found, "tpAutor"), "detEvento/tpAutor", autor, stack) ||
            !read_optional(lookup(found, "verAplic"), "detEvento/verAplic", fields.versao_aplicativo, stack) ||
            !read_optional(lookup(found, "chNFeRef"), "detEvento/chNFeRef", fields.chave_acesso_substituta, stack)) {
            return cancelamento();
        }
    }
    if (!read_required(lookup(found, "nProt"), "detEvento/nProt", fields.protocolo_autorizacao, stack) ||
        !read_required(lookup(found, "xJust"), "detEvento/xJust", fields.justificativa, stack)) {
        return cancelamento();
    }
    fields.xml = det_evento;
    return result;
}

cancelamento cancelamento::from_xml(xml::document const& documento, tipo_cancelamento tipo,
                                    core::result::stack& stack)
{
    return read_root<cancelamento>(documento, stack, tipo);
}

std::uint64_t cancelamento::get_protocolo_autorizacao() const { return dados_->protocolo_autorizacao; }
std::string cancelamento::get_justificativa() const { return dados_->justificativa; }
core::optional<std::uint16_t> cancelamento::get_codigo_orgao_autor() const { return dados_->codigo_orgao_autor; }
core::optional<std::string> cancelamento::get_versao_aplicativo() const { return dados_->versao_aplicativo; }
core::optional<chave_acesso> cancelamento::get_chave_acesso_substituta() const
{
    return dados_->chave_acesso_substituta;
}
tipo_cancelamento cancelamento::get_tipo_cancelamento() const { return dados_->tipo; }
xml::element cancelamento::get_xml() const { return dados_->xml; }

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
