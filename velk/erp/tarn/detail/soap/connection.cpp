#include <velk/erp/tarn/detail/soap/connection.hpp>

#include <velk/core/fatal.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/detail/soap/client_certificate.hpp>
#include <velk/erp/tarn/detail/soap/curl_result_category.hpp>
#include <velk/erp/tarn/detail/soap/envelope.hpp>
#include <velk/erp/tarn/detail/soap/parse_response.hpp>
#include <velk/erp/tarn/nfe/servico_result_category.hpp>

#include <curl/curl.h>

#include <utility>

namespace velk::erp::inline v4::tarn::detail::soap {

namespace {

using servico = nfe::servico_result_category;

// libcurl takes any count other than the chunk's size as a short write and
// ends the transfer with CURLE_WRITE_ERROR; no exception may cross libcurl.
size_t append_chunk(char* data, size_t size, size_t count, void* answer)
{
    size_t const length = size * count;
    if (length == 0) {
        return 0;
    }
    try {
        auto const* first = reinterpret_cast<unsigned char const*>(data);
        static_cast<core::byte_array*>(answer)->append(first, first + length);
    } catch (...) {
        return CURLE_WRITE_ERROR;
    }
    return length;
}

curl_slist* make_headers(std::string const& action_url)
{
    std::string const lines[] = {
        "Content-Type: application/soap+xml; charset=utf-8; action=\"" + action_url + "\"",
        "Connection: close",
        "SOAPAction: \"" + action_url + "\"",
    };
    curl_slist* headers = nullptr;
    for (std::string const& line : lines) {
        headers = curl_slist_append(headers, line.c_str());
    }
    return headers;
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
    if (endpoint_url.empty() || action_url.empty()) {
        core::result::fresh<servico::servico_indisponivel>(result, endpoint_url, action_url);
        return message();
    }
    core::byte_array const envelope = write_envelope(request, result);
    if (result.has_failed()) {
        return message();
    }

    CURL* const handle = curl_easy_init();
    if (handle == nullptr) {
        core::fatal_exit("Out of memory: não foi possível alocar memória para tipo 'CURL'");
    }
    char error_buffer[CURL_ERROR_SIZE] = {};
    core::byte_array answer;
    curl_slist* const headers = make_headers(action_url);

    curl_easy_setopt(handle, CURLOPT_URL, endpoint_url.c_str());
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headers);
    curl_easy_setopt(handle, CURLOPT_USERAGENT, "velk-erp/4.0.0");
    curl_easy_setopt(handle, CURLOPT_ACCEPT_ENCODING, "");
    // Peer and host verification stay on: the answer of a server that is not
    // the authority's must never be read.
    curl_easy_setopt(handle, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(handle, CURLOPT_SSL_VERIFYHOST, 2L);
    curl_easy_setopt(handle, CURLOPT_POSTFIELDS, envelope.data());
    curl_easy_setopt(handle, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(envelope.size()));
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &answer);
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &append_chunk);
    curl_easy_setopt(handle, CURLOPT_ERRORBUFFER, error_buffer);
    curl_easy_setopt(handle, CURLOPT_FAILONERROR, 1L);
    curl_easy_setopt(handle, CURLOPT_FOLLOWLOCATION, 1L);

    // No default limit exists: a call without one would wait for ever.
    if (timeout_.count() <= 0) {
        core::result::fresh<servico::sem_tempo_limite>(result);
        curl_slist_free_all(headers);
        curl_easy_cleanup(handle);
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
    curl_slist_free_all(headers);

    message response;
    if (performed != CURLE_OK) {
        report_curl_failure(performed, error_buffer, result);
    } else {
        response = parse_response(answer, result);
    }
    curl_easy_cleanup(handle);
    return response;
}

}  // namespace velk::erp::inline v4::tarn::detail::soap
