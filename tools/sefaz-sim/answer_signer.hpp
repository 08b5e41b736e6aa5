#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace velk::tools::sefaz_sim {

// The authority's own signature on the answers that carry one (retInutNFe):
// the enveloped form of the NF-e messages, made with the server's key and
// certificate, the same pair that serves TLS.
class answer_signer {
public:
    // Reads both PEM files; valid() tells whether they were usable.
    answer_signer(std::filesystem::path const& certificate_pem, std::filesystem::path const& key_pem);
    ~answer_signer();
    answer_signer(answer_signer const&) = delete;
    answer_signer& operator=(answer_signer const&) = delete;

    bool valid() const;

    // `message` is an element as text; its child whose Id is `id` gets
    // signed, and the Signature goes in as the message's last child. Empty
    // when the message does not parse or holds no such child.
    std::string sign(std::string const& message, std::string const& id) const;

private:
    struct keys;
    std::unique_ptr<keys> keys_;
};

}  // namespace velk::tools::sefaz_sim
