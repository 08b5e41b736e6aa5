#pragma once

#include <velk/core/date.hpp>
#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// A batch of the item, for goods that must be traced (medicines, pesticides, drinks).
class VELK_EXPORT informacoes_rastreabilidade {
public:
    // nLote
    std::string numero_lote() const { return numero_lote_; }
    informacoes_rastreabilidade& set_numero_lote(std::string value)
    {
        numero_lote_ = std::move(value);
        return *this;
    }

    // qLote
    core::decimal quantidade_de_produto_no_lote() const { return quantidade_de_produto_no_lote_; }
    informacoes_rastreabilidade& set_quantidade_de_produto_no_lote(core::decimal value)
    {
        quantidade_de_produto_no_lote_ = std::move(value);
        return *this;
    }

    // dFab
    core::date data_fabricacao() const { return data_fabricacao_; }
    informacoes_rastreabilidade& set_data_fabricacao(core::date value)
    {
        data_fabricacao_ = std::move(value);
        return *this;
    }

    // dVal
    core::date data_validade() const { return data_validade_; }
    informacoes_rastreabilidade& set_data_validade(core::date value)
    {
        data_validade_ = std::move(value);
        return *this;
    }

    // cAgreg
    core::optional<std::string> codigo_agregacao() const { return codigo_agregacao_; }
    informacoes_rastreabilidade& set_codigo_agregacao(core::optional<std::string> value)
    {
        codigo_agregacao_ = std::move(value);
        return *this;
    }

private:
    std::string numero_lote_;
    core::decimal quantidade_de_produto_no_lote_;
    core::date data_fabricacao_;
    core::date data_validade_;
    core::optional<std::string> codigo_agregacao_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
