#pragma once

#include <string>

namespace velk::tools::sefaz_sim {

// One document's outcome as the authority tells it in protNFe: authorized
// with a protocol number, or rejected without one.
struct document_protocol {
    std::string versao = "4.00";
    std::string ambiente = "2";
    std::string key;          // chNFe
    std::string received_at;  // dhRecbto
    std::string number;       // nProt; empty for a rejection
    std::string digest;       // digVal: the document's DigestValue, once its signature was verified
    int status = 0;
    std::string reason;

    // The protNFe element, in the namespace of its parent.
    std::string xml() const;
};

}  // namespace velk::tools::sefaz_sim
