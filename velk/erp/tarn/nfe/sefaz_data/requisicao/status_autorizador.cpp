#include <velk/erp/tarn/nfe/sefaz_data/requisicao/status_autorizador.hpp>

#include <velk/core/converter.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/namespace_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

struct status_autorizador::impl {
    versao versao_value = versao::versao_3_10;
    ambiente ambiente_value = ambiente::homologacao;
    estado estado_value = estado::ac;
};

status_autorizador::status_autorizador() : impl_(std::make_unique<impl>()) {}
status_autorizador::status_autorizador(status_autorizador const& other) : impl_(std::make_unique<impl>(*other.impl_))
{
}
status_autorizador::status_autorizador(status_autorizador&& other) noexcept = default;
status_autorizador& status_autorizador::operator=(status_autorizador const& other)
{
    if (this != &other) {
        impl_ = std::make_unique<impl>(*other.impl_);
    }
    return *this;
}
status_autorizador& status_autorizador::operator=(status_autorizador&& other) noexcept = default;
status_autorizador::~status_autorizador() = default;

void status_autorizador::set_versao(versao value) { impl_->versao_value = value; }
versao status_autorizador::get_versao() const { return impl_->versao_value; }
void status_autorizador::set_ambiente(ambiente value) { impl_->ambiente_value = value; }
ambiente status_autorizador::get_ambiente() const { return impl_->ambiente_value; }
void status_autorizador::set_estado(estado const& value) { impl_->estado_value = value; }
estado status_autorizador::get_estado() const { return impl_->estado_value; }

xml::element status_autorizador::get_xml(core::result::stack& result) const
{
    xml::element root("consStatServ");
    if (!root.append_namespace(xml::namespace_id("", namespace_nfe), result)) {
        return root;
    }
    // Each value as text, or code 9 naming the field that has none.
    auto const text_of = [&result](auto const value, char const* field, std::string& text) {
        text = core::make_string(value, result);
        if (result.has_failed()) {
            core::result::chain<result_category::valor_requisicao_invalido>(result, "status_autorizador", field);
            return false;
        }
        return true;
    };
    std::string text;
    if (!text_of(impl_->versao_value, "versao", text) || !root.append_attribute(xml::attribute("versao", text), result)) {
        return root;
    }
    if (!text_of(get_codigo_ambiente(impl_->ambiente_value), "ambiente", text)) {
        return root;
    }
    root.append_node(xml::element("tpAmb", xml::text(text)));
    if (!text_of(get_codigo_ibge(impl_->estado_value), "estado", text)) {
        return root;
    }
    root.append_node(xml::element("cUF", xml::text(text)));
    root.append_node(xml::element("xServ", xml::text("STATUS")));
    return root;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
