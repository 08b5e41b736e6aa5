#include <velk/erp/tarn/detail/soap/connection.hpp>

#include <velk/core/fatal.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/detail/soap/answer_chunk.hpp>
#include <velk/erp/tarn/detail/soap/client_certificate.hpp>
#include <velk/erp/tarn/detail/soap/curl_result_category.hpp>
#include <velk/erp/tarn/detail/soap/envelope.hpp>
#include <velk/erp/tarn/detail/soap/parse_response.hpp>
#include <velk/erp/tarn/nfe/servico_result_category.hpp>

#include <curl/curl.h>

#include <memory>
#include <new>
#include <utility>

namespace velk::erp::inline v4::tarn::detail::soap {

namespace {

using servico = nfe::servico_result_category;

struct handle_cleanup {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};
using curl_handle = std::unique_ptr<CURL, handle_cleanup>;

struct list_cleanup {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using header_list = std::unique_ptr<curl_slist, list_cleanup>;

// libcurl's process-wide state (its TLS back-end among it) is set up once,
// before the first handle of the process, whatever thread makes it: the
// caller never has to. It is never torn down, since another thread may be in
// an exchange at any time until the process ends.
CURLcode global_setup()
{
    static CURLcode const setup = curl_global_init(CURL_GLOBAL_DEFAULT);
    return setup;
}

// The three lines of every request. Empty when memory runs out.
header_list make_headers(std::string const& action_url)
{
    std::string const lines[] = {
        "Content-Type: application/soap+xml; charset=utf-8; action=\"" + action_url + "\"",
        "Connection: close",
        "SOAPAction: \"" + action_url + "\"",
    };
    header_list headers;
    for (std::string const& line : lines) {
        // On failure the list so far stays whole, and goes with `headers`.
        curl_slist* const head = curl_slist_append(headers.get(), line.c_str());
        if (head == nullptr) {
            return header_list();
        }
        // Later lines go to the end: the head stays the first line's.
        if (!headers) {
            headers.reset(head);
        }
    }
    return headers;
}

// What keeps the signed envelope from ever travelling in clear or through an
// obsolete protocol, and keeps libcurl's name look-ups from touching the
// process's signals (which are not thread-safe). These must hold, so a
// libcurl that cannot honour one fails the call.
CURLcode harden(CURL* handle)
{
    CURLcode const results[] = {
        curl_easy_setopt(handle, CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2)),
        curl_easy_setopt(handle, CURLOPT_REDIR_PROTOCOLS_STR, "https"),
        curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L),
    };
    for (CURLcode const each : results) {
        if (each != CURLE_OK) {
            return each;
        }
    }
    return CURLE_OK;
}

// Memory ran out somewhere in the exchange: reported as libcurl reports its
// own shortage. Should even the report not fit, the process ends.
void report_out_of_memory(core::result::stack& result) noexcept
{
    try {
        report_curl_failure(CURLE_OUT_OF_MEMORY, "", result);
    } catch (...) {
        core::fatal_exit("Out of memory: não foi possível relatar a falta de memória da troca SOAP");
    }
}

}  // namespace

connection::connection(core::optional<network::proxy> proxy, std::chrono::milliseconds timeout,
                       std::shared_ptr<auth_impl const> auth)
    : proxy_(std::move(proxy)), timeout_(timeout), auth_(std::move(auth))
{
}

message connection::send(message const& request, std::string const& endpoint_url, std::string const& action_url,
                         core::result::stack& result) const
{
    try {
        return perform(request, endpoint_url, action_url, result);
    } catch (std::bad_alloc const&) {
        report_out_of_memory(result);
        return message();
    }
}

message connection::perform(message const& request, std::string const& endpoint_url, std::string const& action_url,
                            core::result::stack& result) const
{
    if (endpoint_url.empty() || action_url.empty()) {
        core::result::fresh<servico::servico_indisponivel>(result, endpoint_url, action_url);
        return message();
    }
    core::byte_array const envelope = write_envelope(request, result);
    if (result.has_failed()) {
        return message();
    }

    if (CURLcode const setup = global_setup(); setup != CURLE_OK) {
        report_curl_failure(setup, "", result);
        return message();
    }
    curl_handle const owned_handle(curl_easy_init());
    CURL* const handle = owned_handle.get();
    if (handle == nullptr) {
        core::fatal_exit("Out of memory: não foi possível alocar memória para tipo 'CURL'");
    }
    char error_buffer[CURL_ERROR_SIZE] = {};
    bounded_answer<core::byte_array> answer;
    answer.limit = largest_answer;
    header_list const headers = make_headers(action_url);
    if (!headers) {
        report_curl_failure(CURLE_OUT_OF_MEMORY, "", result);
        return message();
    }

    curl_easy_setopt(handle, CURLOPT_URL, endpoint_url.c_str());
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headers.get());
    curl_easy_setopt(handle, CURLOPT_USERAGENT, "velk-erp/4.0.0");
    curl_easy_setopt(handle, CURLOPT_ACCEPT_ENCODING, "");
    // Peer and host verification stay on: the answer of a server that is not
    // the authority's must never be read.
    curl_easy_setopt(handle, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(handle, CURLOPT_SSL_VERIFYHOST, 2L);
    curl_easy_setopt(handle, CURLOPT_POSTFIELDS, envelope.data());
    curl_easy_setopt(handle, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(envelope.size()));
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &answer);
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &append_chunk<core::byte_array>);
    curl_easy_setopt(handle, CURLOPT_ERRORBUFFER, error_buffer);
    curl_easy_setopt(handle, CURLOPT_FAILONERROR, 1L);
    curl_easy_setopt(handle, CURLOPT_FOLLOWLOCATION, 1L);
    if (CURLcode const hardened = harden(handle); hardened != CURLE_OK) {
        report_curl_failure(hardened, "", result);
        return message();
    }

    // No default limit exists: a call without one would wait for ever.
    if (timeout_.count() <= 0) {
        core::result::fresh<servico::sem_tempo_limite>(result);
        return message();
    }
    curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, static_cast<long>(timeout_.count()));

    if (proxy_.has_value()) {
        network::proxy const& through = *proxy_;
        std::string const address = through.get_host() + ":" + std::to_string(through.get_port());
        curl_easy_setopt(handle, CURLOPT_PROXY, address.c_str());
        curl_easy_setopt(handle, CURLOPT_PROXYUSERNAME, through.get_user().c_str());
        curl_easy_setopt(handle, CURLOPT_PROXYPASSWORD, through.get_password().c_str());
    }

    if (!auth_) {
        core::fatal_exit("BUG FOUND! Chame 'set_auth' no serviço antes de 'executar'");
    }
    curl_easy_setopt(handle, CURLOPT_CAINFO, auth_->ca_info_path.c_str());
    curl_easy_setopt(handle, CURLOPT_SSL_CTX_DATA, const_cast<auth_impl*>(auth_.get()));
    curl_easy_setopt(handle, CURLOPT_SSL_CTX_FUNCTION, &use_client_certificate);

    CURLcode const performed = curl_easy_perform(handle);
    if (performed != CURLE_OK) {
        report_curl_failure(performed, error_buffer, result);
        if (answer.over_limit) {
            core::result::chain<servico::resposta_ilegivel>(
                result, "A resposta da receita excede o limite de " + std::to_string(largest_answer) + " bytes");
        }
        return message();
    }
    return parse_response(answer.bytes, result);
}

}  // namespace velk::erp::inline v4::tarn::detail::soap
