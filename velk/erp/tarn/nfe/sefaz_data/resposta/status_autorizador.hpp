#pragma once

#include <velk/core/datetime.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

// The authorizer's answer to the status query (retConsStatServ). Status 107
// means the service is running; whatever the status, reading it is a success.
class VELK_EXPORT status_autorizador {
public:
    status_autorizador();
    status_autorizador(status_autorizador const& other);
    status_autorizador(status_autorizador&& other) noexcept;
    status_autorizador& operator=(status_autorizador const& other);
    status_autorizador& operator=(status_autorizador&& other) noexcept;
    ~status_autorizador();

    // cStat, xMotivo, dhRecbto (required); dhRetorno, tMed, xObs (optional).
    std::int32_t get_codigo_status() const;
    std::string get_motivo() const;
    core::datetime get_data_recebimento() const;
    core::optional<core::datetime> get_data_retorno() const;
    core::optional<std::int16_t> get_tempo_medio() const;
    std::string get_informacoes_adicionais() const;
    // A copy of the tree the answer was read from, kept whole for archiving;
    // an element with an empty name when nothing was read.
    xml::element get_xml() const;

    // Reads retConsStatServ. A root of another name is a fresh
    // sefaz_data::result_category code 1 ("retConsStatServ"); a missing
    // required tag code 1 with its path; a value that does not convert code 2
    // with its path and text over the converter's failure. Reading stops at the
    // first failure and keeps what was read before it, and the tree in any case.
    static status_autorizador from_xml(xml::element const& root, core::result::stack& result);
    // The same for the document's root; a document without root is code 5.
    static status_autorizador from_xml(xml::document const& document, core::result::stack& result);

private:
    struct impl;
    std::unique_ptr<impl> impl_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
