#pragma once

// Answers of the event service as the authorities write them (no real one is
// among the samples): one retEvento, and the retEnvEvento around some.

#include <string>

namespace velk::test {

struct ret_evento_campos {
    std::string cstat = "135";
    std::string motivo = "Evento registrado e vinculado a NF-e";
    std::string chave = "35150300822602000124550010009923461099234656";  // empty: left out
    std::string tipo = "110111";                                           // empty: left out
    std::string protocolo = "135240000123456";                             // empty: left out
    std::string data_registro = "2024-02-01T14:07:08-03:00";
};

inline std::string ret_evento(ret_evento_campos const& campos)
{
    auto const optional_tag = [](char const* tag, std::string const& text) {
        return text.empty() ? std::string() : "<" + std::string(tag) + ">" + text + "</" + tag + ">";
    };
    return "<retEvento versao=\"1.00\"><infEvento><tpAmb>2</tpAmb><verAplic>SVRS202401151530</verAplic>"
           "<cOrgao>35</cOrgao><cStat>" + campos.cstat + "</cStat><xMotivo>" + campos.motivo + "</xMotivo>" +
           optional_tag("chNFe", campos.chave) + optional_tag("tpEvento", campos.tipo) +
           (campos.tipo.empty() ? "" : "<nSeqEvento>1</nSeqEvento>") + "<dhRegEvento>" + campos.data_registro +
           "</dhRegEvento>" + optional_tag("nProt", campos.protocolo) + "</infEvento></retEvento>";
}

inline std::string ret_env_evento(std::string const& cstat, std::string const& motivo, std::string const& eventos)
{
    return "<retEnvEvento xmlns=\"http://www.portalfiscal.inf.br/nfe\" versao=\"1.00\"><idLote>123</idLote>"
           "<tpAmb>2</tpAmb><verAplic>SVRS202401151530</verAplic><cOrgao>35</cOrgao><cStat>" + cstat +
           "</cStat><xMotivo>" + motivo + "</xMotivo>" + eventos + "</retEnvEvento>";
}

inline std::string lote_processado(std::string const& eventos)
{
    return ret_env_evento("128", "Lote de Evento Processado", eventos);
}

}  // namespace velk::test
