#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/modelo.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>
#include <velk/xml/element.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

// The question for the processing result of an authorization batch by its
// receipt number (consReciNFe). The state and the model are not written: the
// service chooses the authorizer by them.
class VELK_EXPORT consulta_recibo {
public:
    consulta_recibo();
    consulta_recibo(consulta_recibo const& other);
    consulta_recibo(consulta_recibo&& other) noexcept;
    consulta_recibo& operator=(consulta_recibo const& other);
    consulta_recibo& operator=(consulta_recibo&& other) noexcept;
    ~consulta_recibo();

    // Nothing is checked.
    static consulta_recibo from_data(ambiente tipo_ambiente, versao versao_layout, unsigned long long numero_recibo,
                                     estado uf, modelo modelo_documento);

    ambiente get_ambiente() const;
    versao get_versao() const;
    unsigned long long get_numero_recibo() const;
    estado get_estado() const;
    modelo get_modelo_chave() const;

    // consReciNFe with the NF-e namespace, then the attribute versao, then
    // tpAmb and nRec (decimal, no zero-fill). A field without text ends it
    // with code 9 ("consulta_recibo", the field) on top of the converter's
    // failure; the element is then unfinished.
    xml::element get_xml(core::result::stack& stack) const;

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
