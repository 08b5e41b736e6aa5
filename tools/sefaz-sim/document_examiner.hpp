#pragma once

#include "document_protocol.hpp"

#include <libxml/tree.h>

#include <string>

namespace velk::tools::sefaz_sim {

// The checks of one document of a batch that need nothing but the document,
// in the authority's order: its signature, verified with the certificate it
// carries (298 not of the standard form, 297 not matching), the environment
// (252), the access key of its Id (236 wrong check digit, 502 not the key its
// ide and emit make).
class document_examiner {
public:
    // `ambiente`: the environment of this authority.
    explicit document_examiner(std::string ambiente) : ambiente_(std::move(ambiente)) {}

    // The protNFe of the document (an NFe element) so far: key, reception
    // time, digest once the signature was verified, and the status of the
    // first check it failed, or 0 when it passed them all.
    document_protocol examine(xmlNode const* nfe, std::string const& versao) const;

private:
    std::string ambiente_;
};

}  // namespace velk::tools::sefaz_sim
