#pragma once

#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/detail/soap/message.hpp>
#include <velk/network/proxy.hpp>
#include <velk/xml/document.hpp>

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>

namespace velk::erp::inline v4::tarn::detail::soap {

// What one exchange needs besides the message: made afresh for each call from
// the settings of a service object.
class connection {
public:
    // The taxpayer's certificate and the authorities the server is checked
    // against. Immutable once made, shared by a service, its copies and their
    // connections.
    struct auth_impl {
        // Must stay the first member: the TLS set-up receives the address of
        // the whole object and reads it as the pkcs12.
        cryptography::pkcs12 pkcs12;
        // File of trusted certificate authorities, handed to libcurl as it is.
        std::string ca_info_path;
    };

    // The largest answer read, in bytes: the most the XML reader takes, far
    // above what an authority sends (a batch's 50 protocols, a query by key
    // with its events, are tens of kilobytes), and small enough that a server
    // that never stops costs no more than this. A larger answer is refused as
    // it arrives, never held whole, whether its length is announced or not,
    // and counted as libcurl hands it over, after any content encoding is
    // undone.
    static constexpr std::size_t largest_answer = xml::document::largest_input;

    connection(core::optional<network::proxy> proxy, std::chrono::milliseconds timeout,
               std::shared_ptr<auth_impl const> auth);

    // One SOAP 1.2 POST over TLS with the client certificate: writes the
    // envelope, sends it with a new libcurl handle (no reuse, "Connection:
    // close"), and reads the answer with parse_response. Fails, with an empty
    // message, on an empty endpoint or action (servico code 5, nothing sent),
    // a zero time-out (servico code 3, nothing sent), a transport failure
    // (curl_result_category, with libcurl's text in "curl_message"), an HTTP
    // status of 400 or more (curl code 8), an answer larger than
    // largest_answer (curl code 9, the transfer stopped, under servico code 2
    // naming the limit) and whatever parse_response refuses.
    // Only TLS 1.2 or later is spoken, a redirect is followed to https only,
    // and memory running out is reported (curl code 10), never thrown. Calls
    // may run at the same time in any threads: nothing is shared but the
    // immutable auth_impl, and libcurl is set up once for the whole process.
    message send(message const& request, std::string const& endpoint_url, std::string const& action_url,
                 core::result::stack& result) const;

private:
    // send without the guard against memory running out.
    message perform(message const& request, std::string const& endpoint_url, std::string const& action_url,
                    core::result::stack& result) const;

    core::optional<network::proxy> proxy_;
    std::chrono::milliseconds timeout_;
    std::shared_ptr<auth_impl const> auth_;
};

}  // namespace velk::erp::inline v4::tarn::detail::soap
