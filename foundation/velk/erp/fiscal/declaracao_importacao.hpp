#pragma once

#include <velk/core/date.hpp>
#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/adicao.hpp>
#include <velk/erp/fiscal/forma_intermedio_importacao.hpp>
#include <velk/erp/fiscal/via_transporte.hpp>

#include <string>
#include <utility>
#include <vector>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// An import declaration (DI, DSI, DIRE) of the item.
class VELK_EXPORT declaracao_importacao {
public:
    // nDI
    std::string get_numero_documento_importacao() const { return numero_documento_importacao_; }
    declaracao_importacao& set_numero_documento_importacao(std::string value)
    {
        numero_documento_importacao_ = std::move(value);
        return *this;
    }

    // dDI
    core::date get_data_registro() const { return data_registro_; }
    declaracao_importacao& set_data_registro(core::date value)
    {
        data_registro_ = std::move(value);
        return *this;
    }

    // xLocDesemb
    std::string get_local_desembaraco() const { return local_desembaraco_; }
    declaracao_importacao& set_local_desembaraco(std::string value)
    {
        local_desembaraco_ = std::move(value);
        return *this;
    }

    // UFDesemb
    std::string get_uf_desembaraco() const { return uf_desembaraco_; }
    declaracao_importacao& set_uf_desembaraco(std::string value)
    {
        uf_desembaraco_ = std::move(value);
        return *this;
    }

    // dDesemb
    core::date get_data_desembaraco() const { return data_desembaraco_; }
    declaracao_importacao& set_data_desembaraco(core::date value)
    {
        data_desembaraco_ = std::move(value);
        return *this;
    }

    // tpViaTransp
    via_transporte get_via_transporte() const { return via_transporte_; }
    declaracao_importacao& set_via_transporte(via_transporte value)
    {
        via_transporte_ = value;
        return *this;
    }

    // vAFRMM
    core::optional<core::decimal> get_valor_afrmm() const { return valor_afrmm_; }
    declaracao_importacao& set_valor_afrmm(core::optional<core::decimal> value)
    {
        valor_afrmm_ = std::move(value);
        return *this;
    }

    // tpIntermedio
    forma_intermedio_importacao get_forma_intermedio_importacao() const { return forma_intermedio_importacao_; }
    declaracao_importacao& set_forma_intermedio_importacao(forma_intermedio_importacao value)
    {
        forma_intermedio_importacao_ = value;
        return *this;
    }

    // CNPJ of the acquirer or ordering party, digits only
    core::optional<std::string> get_cnpj_importador() const { return cnpj_importador_; }
    declaracao_importacao& set_cnpj_importador(core::optional<std::string> value)
    {
        cnpj_importador_ = std::move(value);
        return *this;
    }

    // UFTerceiro
    core::optional<std::string> get_uf_importador() const { return uf_importador_; }
    declaracao_importacao& set_uf_importador(core::optional<std::string> value)
    {
        uf_importador_ = std::move(value);
        return *this;
    }

    // cExportador
    std::string get_codigo_exportador() const { return codigo_exportador_; }
    declaracao_importacao& set_codigo_exportador(std::string value)
    {
        codigo_exportador_ = std::move(value);
        return *this;
    }

    // adi
    std::vector<adicao> get_adicoes() const { return adicoes_; }
    declaracao_importacao& set_adicoes(std::vector<adicao> value)
    {
        adicoes_ = std::move(value);
        return *this;
    }

private:
    std::string numero_documento_importacao_;
    core::date data_registro_;
    std::string local_desembaraco_;
    std::string uf_desembaraco_;
    core::date data_desembaraco_;
    via_transporte via_transporte_{};
    core::optional<core::decimal> valor_afrmm_;
    forma_intermedio_importacao forma_intermedio_importacao_{};
    core::optional<std::string> cnpj_importador_;
    core::optional<std::string> uf_importador_;
    std::string codigo_exportador_;
    std::vector<adicao> adicoes_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
