#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>
#include <velk/xml/element.hpp>

#include <memory>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

// The status query of an authorizer (consStatServ): is its service running
// for this state and environment?
class VELK_EXPORT status_autorizador {
public:
    // Version 3.10, homologation, the first state.
    status_autorizador();
    status_autorizador(status_autorizador const& other);
    status_autorizador(status_autorizador&& other) noexcept;
    status_autorizador& operator=(status_autorizador const& other);
    status_autorizador& operator=(status_autorizador&& other) noexcept;
    ~status_autorizador();

    void set_versao(versao value);
    versao get_versao() const;
    void set_ambiente(ambiente value);
    ambiente get_ambiente() const;
    void set_estado(estado const& value);
    estado get_estado() const;

    // <consStatServ versao="..." xmlns="http://www.portalfiscal.inf.br/nfe">
    // <tpAmb/><cUF/><xServ>STATUS</xServ></consStatServ>. A version without
    // text is sefaz_data::result_category code 9 ("status_autorizador",
    // "versao") over the converter's failure.
    xml::element get_xml(core::result::stack& result) const;

private:
    struct impl;
    std::unique_ptr<impl> impl_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
