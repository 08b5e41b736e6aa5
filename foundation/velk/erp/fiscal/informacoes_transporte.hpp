#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/modalidade_frete.hpp>
#include <velk/erp/fiscal/transportador.hpp>
#include <velk/erp/fiscal/veiculo_transporte.hpp>
#include <velk/erp/fiscal/volume.hpp>

#include <utility>
#include <vector>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// How the goods travel.
class VELK_EXPORT informacoes_transporte {
public:
    // modFrete
    modalidade_frete get_modalidade_frete() const { return modalidade_frete_; }
    informacoes_transporte& set_modalidade_frete(modalidade_frete value)
    {
        modalidade_frete_ = value;
        return *this;
    }

    // transporta
    core::optional<transportador> get_transportador() const { return transportador_; }
    informacoes_transporte& set_transportador(core::optional<transportador> value)
    {
        transportador_ = std::move(value);
        return *this;
    }

    // veicTransp
    core::optional<veiculo_transporte> get_veiculo() const { return veiculo_; }
    informacoes_transporte& set_veiculo(core::optional<veiculo_transporte> value)
    {
        veiculo_ = std::move(value);
        return *this;
    }

    // vol
    std::vector<volume> get_volumes() const { return volumes_; }
    informacoes_transporte& set_volumes(std::vector<volume> value)
    {
        volumes_ = std::move(value);
        return *this;
    }

private:
    modalidade_frete modalidade_frete_{};
    core::optional<transportador> transportador_;
    core::optional<veiculo_transporte> veiculo_;
    std::vector<volume> volumes_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
