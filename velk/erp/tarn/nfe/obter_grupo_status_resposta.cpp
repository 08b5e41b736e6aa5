#include <velk/erp/tarn/nfe/obter_grupo_status_resposta.hpp>

#include <algorithm>
#include <cstdint>
#include <initializer_list>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

int grupo(std::uint32_t codigo_status, std::initializer_list<std::uint32_t> sucesso)
{
    if (std::find(sucesso.begin(), sucesso.end(), codigo_status) != sucesso.end()) {
        return grupo_sucesso;
    }
    switch (codigo_status) {
    case 999:
        return grupo_erro_desconhecido;
    case 108:
    case 109:
        return grupo_servico_indisponivel;
    default:
        return grupo_rejeitado;
    }
}

}  // namespace

int obter_grupo_status_resposta(sefaz_data::resposta::consulta const& resposta)
{
    return grupo(resposta.get_codigo_status(), {100, 101, 110, 150, 151});
}

int obter_grupo_status_resposta(sefaz_data::resposta::inutilizacao const& resposta)
{
    return grupo(resposta.get_codigo_status(), {102});
}

int obter_grupo_status_resposta(sefaz_data::resposta::lote_autorizacao const& resposta)
{
    return grupo(resposta.get_codigo_status(), {104});
}

int obter_grupo_status_resposta(sefaz_data::resposta::protocolo_nfe const& resposta)
{
    return grupo(resposta.get_codigo_status(), {100, 150});
}

int obter_grupo_status_resposta(sefaz_data::resposta::cancelamento const& resposta)
{
    return grupo(resposta.get_codigo_status(), {135, 151});
}

int obter_grupo_status_resposta(sefaz_data::resposta::carta_correcao const& resposta)
{
    return grupo(resposta.get_codigo_status(), {135});
}

int obter_grupo_status_resposta(sefaz_data::resposta::epec_nfe const& resposta)
{
    return grupo(resposta.get_codigo_status(), {136});
}

int obter_grupo_status_resposta(sefaz_data::resposta::manifestacao_destinatario const& resposta)
{
    return grupo(resposta.get_codigo_status(), {135, 136});
}

int obter_grupo_status_resposta(sefaz_data::resposta::lote_evento const& resposta)
{
    return grupo(resposta.get_codigo_status(), {128});
}

int obter_grupo_status_resposta(sefaz_data::resposta::resposta_evento const& resposta)
{
    return core::visit([](auto const& alternative) { return obter_grupo_status_resposta(alternative); }, resposta);
}

}  // namespace velk::erp::inline v4::tarn::nfe
