#include <velk/erp/tarn/nfe/sefaz_data/requisicao/epec_nfe.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/det_evento.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

namespace {

using destinatario = epec_nfe::destinatario;

// The tag of each alternative of the identification, in the order of the
// variant.
constexpr char const* tags_identificacao[] = {"CNPJ", "CPF", "idEstrangeiro"};

// The amounts as the layout writes them: two decimal places, a point.
std::string texto_valor(core::decimal const& valor) { return valor.to_string(2, '.'); }

std::string const& texto_documento(destinatario::identificacao const& documento)
{
    return core::visit([](auto const& alternative) -> std::string const& { return alternative.valor; }, documento);
}

// An amount of dest, when the tag is there.
bool read_valor(xml::element const* found, std::string const& element_name, core::decimal& valor,
                core::result::stack& stack)
{
    if (found == nullptr) {
        return true;
    }
    std::string const text = found->get_contents();
    if (!core::decimal::parse(text, valor)) {
        core::result::fresh<core::converter_result_category::invalid_value>(stack);
        core::result::chain<result_category::valor_elemento_invalido>(stack, element_name, text);
        return false;
    }
    return true;
}

}  // namespace

struct destinatario::dados {
    estado uf = estado::ac;
    identificacao documento = cnpj{};
    std::string ie;
    totais valores;
    xml::element xml;
};

destinatario::destinatario() = default;
destinatario::destinatario(destinatario const& other) = default;
destinatario::destinatario(destinatario&& other) noexcept = default;
destinatario& destinatario::operator=(destinatario const& other) = default;
destinatario& destinatario::operator=(destinatario&& other) noexcept = default;
destinatario::~destinatario() = default;

destinatario destinatario::from_data(estado const& uf, identificacao const& documento, std::string const& ie,
                                     totais const& valores, core::result::stack&)
{
    destinatario result;
    dados& fields = *result.dados_;
    fields.xml = xml::element("dest");
    detail::append_text(fields.xml, "UF", get_uf(uf));
    std::string const& documento_text = texto_documento(documento);
    detail::append_text(fields.xml, tags_identificacao[documento.index()], documento_text);
    if (!ie.empty()) {
        detail::append_text(fields.xml, "IE", ie);
    }
    detail::append_text(fields.xml, "vNF", texto_valor(valores.valor_nf));
    detail::append_text(fields.xml, "vICMS", texto_valor(valores.valor_icms));
    detail::append_text(fields.xml, "vST", texto_valor(valores.valor_icms_st));
    fields.uf = uf;
    fields.documento = documento;
    fields.ie = ie;
    fields.valores = valores;
    return result;
}

destinatario destinatario::from_xml(xml::element const& dest, core::result::stack& stack)
{
    if (!detail::root_is(dest, "dest", stack)) {
        return destinatario();
    }
    auto const found = find_elements_by_path(dest, {"UF", "CPF", "CNPJ", "idEstrangeiro", "IE", "vNF", "vICMS", "vST"});
    destinatario result;
    dados& fields = *result.dados_;
    if (!read_required(lookup(found, "UF"), "dest/UF", fields.uf, stack)) {
        return destinatario();
    }
    if (xml::element const* found_cpf = lookup(found, "CPF")) {
        fields.documento = cpf{found_cpf->get_contents()};
    } else if (xml::element const* found_cnpj = lookup(found, "CNPJ")) {
        fields.documento = cnpj{found_cnpj->get_contents()};
    } else if (xml::element const* found_id = lookup(found, "idEstrangeiro")) {
        fields.documento = id_estrangeiro{found_id->get_contents()};
    } else {
        core::result::fresh<result_category::elemento_ausente>(stack, "dest/(CPF|CNPJ|idEstrangeiro)");
        return destinatario();
    }
    if (xml::element const* found_ie = lookup(found, "IE")) {
        fields.ie = found_ie->get_contents();
    }
    if (!read_valor(lookup(found, "vNF"), "dest/vNF", fields.valores.valor_nf, stack) ||
        !read_valor(lookup(found, "vICMS"), "dest/vICMS", fields.valores.valor_icms, stack) ||
        !read_valor(lookup(found, "vST"), "dest/vST", fields.valores.valor_icms_st, stack)) {
        return destinatario();
    }
    fields.xml = dest;
    return result;
}

destinatario destinatario::from_xml(xml::document const& documento, core::result::stack& stack)
{
    return read_root<destinatario>(documento, stack);
}

estado destinatario::get_estado() const { return dados_->uf; }
void destinatario::set_estado(estado uf) { dados_->uf = uf; }
destinatario::identificacao destinatario::get_identificacao() const { return dados_->documento; }
void destinatario::set_identificacao(identificacao const& documento) { dados_->documento = documento; }
std::string destinatario::get_ie() const { return dados_->ie; }
void destinatario::set_ie(std::string const& ie) { dados_->ie = ie; }
destinatario::totais destinatario::get_totais() const { return dados_->valores; }
xml::element destinatario::get_xml() const { return dados_->xml; }

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
