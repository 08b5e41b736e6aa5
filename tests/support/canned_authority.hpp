#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velk::test {

// A web server on the loopback, in this process, that answers every POST with
// the same SOAP envelope, over mutual TLS with the certificates of
// sefaz_simulator::pki(). It stands for an authority whose exact answer a
// test chooses: a real answer kept from an authority, or one shaped to fail.
class canned_authority {
public:
    // An answer too long to hold in memory: `head`, then blanks up to `size`
    // bytes in all, made piece by piece as it is sent, with its length
    // announced or, `chunked`, without it.
    struct streamed_answer {
        std::string head;
        std::size_t size = 0;
        bool chunked = false;
    };

    explicit canned_authority(std::string answer);
    explicit canned_authority(streamed_answer answer);
    ~canned_authority();
    canned_authority(canned_authority const&) = delete;
    canned_authority& operator=(canned_authority const&) = delete;

    // https://127.0.0.1:<port>/ws
    std::string url() const;
    // The bodies received so far, in order.
    std::vector<std::string> received() const;

private:
    canned_authority(std::string answer, std::optional<streamed_answer> streamed);

    struct impl;
    std::unique_ptr<impl> impl_;
};

// A SOAP 1.2 answer with `inside` under the result tag, as the authorities
// write it: no blanks between the tags.
std::string soap_envelope(std::string const& result_tag, std::string const& inside);

}  // namespace velk::test
