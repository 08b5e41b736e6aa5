#pragma once

#include <memory>
#include <string>
#include <vector>

namespace velk::test {

// A stand-in for an authority's server on the loopback that answers every
// POST with one fixed SOAP envelope, for answers the simulator does not give.
// It speaks the simulator's mutual TLS with the certificates of
// sefaz_simulator::pki(), so the client goes through its whole transport.
class canned_sefaz {
public:
    explicit canned_sefaz(std::string envelope);
    ~canned_sefaz();
    canned_sefaz(canned_sefaz const&) = delete;
    canned_sefaz& operator=(canned_sefaz const&) = delete;

    // https://127.0.0.1:<port>/ws
    std::string url() const;
    // The bodies received so far, in order.
    std::vector<std::string> received() const;

private:
    struct impl;
    std::unique_ptr<impl> impl_;
};

// A SOAP 1.2 envelope whose body holds `result_tag` (in the namespace of the
// event service) around `document`, as the authorities answer.
std::string soap_answer(std::string const& result_tag, std::string const& document);

}  // namespace velk::test
