// Transport: the freight mode, the carrier, the vehicle and the volumes.
// Trailers, wagon, ferry, withheld ICMS and seals have no place in the model.

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

constexpr std::uint16_t modFrete[] = {0, 1, 2, 3, 4, 9};

// The street, town and state that the model has, in that order, one blank
// between them; none gives no address line. Town and state keep their own
// tags besides.
core::optional<std::string> montar_xEnder(fiscal::transportador const& transportador)
{
    core::optional<std::string> xEnder;
    for (core::optional<std::string> const& parte :
         {transportador.get_logradouro(), transportador.get_municipio(), transportador.get_uf()}) {
        if (!parte) {
            continue;
        }
        if (xEnder) {
            *xEnder += ' ';
            *xEnder += *parte;
        } else {
            xEnder = *parte;
        }
    }
    return xEnder;
}

grupo::transporta montar_transporta(fiscal::transportador const& transportador)
{
    grupo::transporta transporta;
    if (auto const documento = transportador.get_documento()) {
        transporta.documento = core::visit(
            [](auto const& numero) -> grupo::cnpj_ou_cpf {
                if constexpr (std::is_same_v<std::decay_t<decltype(numero)>, erp::cnpj>) {
                    return grupo::CNPJ{numero.to_number()};
                } else {
                    return grupo::CPF{numero.to_number()};
                }
            },
            *documento);
    }
    transporta.xNome = transportador.get_razao_social();
    transporta.IE = transportador.get_ie();
    transporta.xEnder = montar_xEnder(transportador);
    transporta.xMun = transportador.get_municipio();
    transporta.UF = transportador.get_uf();
    return transporta;
}

grupo::vol montar_vol(fiscal::volume const& volume)
{
    grupo::vol vol;
    vol.qVol = volume.get_quantidade();
    vol.esp = volume.get_especie();
    vol.marca = volume.get_marca();
    vol.nVol = volume.get_numeracao();
    vol.pesoL = volume.get_peso_liquido();
    vol.pesoB = volume.get_peso_bruto();
    return vol;
}

}  // namespace

bool montar_transp(fiscal::informacoes_transporte const& transporte, grupo::transp& transp, core::result::stack& stack)
{
    // The refusal is code 45, whose words speak of the type of issue.
    if (!mapear<codigo::tipo_emissao_invalido>(transporte.get_modalidade_frete(), modFrete, transp.modFrete, stack)) {
        return false;
    }
    if (auto const transportador = transporte.get_transportador()) {
        transp.transporta = montar_transporta(*transportador);
    }
    if (auto const veiculo = transporte.get_veiculo()) {
        transp.veicTransp = grupo::veicTransp{veiculo->get_placa(), veiculo->get_uf(), veiculo->get_rntc()};
    }
    for (fiscal::volume const& volume : transporte.get_volumes()) {
        transp.vol.push_back(montar_vol(volume));
    }
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
