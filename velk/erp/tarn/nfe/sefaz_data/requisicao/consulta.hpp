#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/chave_acesso.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>
#include <velk/xml/element.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

// The question for the situation of one NF-e by its access key (consSitNFe).
// Holds no XML: get_xml writes it anew each time.
class VELK_EXPORT consulta {
public:
    consulta();
    consulta(consulta const& other);
    consulta(consulta&& other) noexcept;
    consulta& operator=(consulta const& other);
    consulta& operator=(consulta&& other) noexcept;
    ~consulta();

    // Nothing is checked, nor compared with anything else.
    static consulta from_data(chave_acesso const& chave, versao const& versao_layout, ambiente const& tipo_ambiente);

    chave_acesso get_chave_acesso() const;
    void set_chave_acesso(chave_acesso const& chave);
    versao get_versao() const;
    void set_versao(versao value);
    ambiente get_ambiente() const;
    void set_ambiente(ambiente value);

    // consSitNFe with the attribute versao, then the NF-e namespace, then
    // tpAmb, xServ "CONSULTAR" and chNFe. A field without text ends it with
    // code 9 ("consulta", the field) on top of the converter's failure; the
    // element is then unfinished.
    xml::element get_xml(core::result::stack& stack) const;

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
