#pragma once

#include <optional>
#include <string>

namespace velk::test {

// An NFC-e (model 65) of layout 4.00 as text, unsigned and without
// infNFeSupl, valid against the official schema once signed and given its
// supplement. One item sold by a small grocery of the Simples Nacional; the
// access key is built from the fields below with its check digit.
struct nfce_campos {
    unsigned cuf = 35;                // IBGE code of the state (cUF and the key)
    std::string municipio = "3550308";
    std::string uf = "SP";
    int tp_amb = 2;                   // 1 production, 2 homologation
    bool contingencia_offline = false;  // tpEmis 9 in ide and in the key, with dhCont and xJust
    std::string dh_emi = "2024-06-05T18:42:37-03:00";
    unsigned nnf = 48213;
    unsigned cnf = 61938274;          // 8 digits
    // The tag and value of the consumer's identifier: "CPF", "CNPJ" or
    // "idEstrangeiro"; none when absent.
    std::optional<std::pair<std::string, std::string>> destinatario = std::nullopt;
    std::string vnf = "37.80";
    std::string vicms = "0.00";
};

struct nfce_teste {
    std::string texto;
    std::string chave;  // the 44 digits
};

nfce_teste nfce_texto(nfce_campos const& campos);

}  // namespace velk::test
