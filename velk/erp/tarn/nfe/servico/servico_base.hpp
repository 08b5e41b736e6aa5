#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/report.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/tarn/nfe/servico_result_category.hpp>
#include <velk/erp/tarn/nfe/web_server_info.hpp>
#include <velk/network/proxy.hpp>
#include <velk/xml/document.hpp>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::detail::soap {
class message;
}

namespace velk::erp::inline v4::tarn::nfe::servico {

// What every web service class shares: the settings of its calls (client
// certificate, proxy, time-out) and the road of a call from the request's
// document to the response object. A service class derives from it and
// writes only what is its own: the first checks, the valid result tags and
// the response type.
//
// Copies have their own proxy and time-out and share the certificate, which
// is never changed once set (set_auth replaces it). There is no move: a
// service object is always usable. Before executar, set_auth and set_timeout
// must have been called; a new object has no time-out, and a call without one
// fails before sending (servico_result_category code 3).
class VELK_EXPORT servico_base {
public:
    // Copies of the two make the certificate of the calls to come; calls
    // already made with the former one are not affected.
    void set_auth(cryptography::pkcs12 const& pkcs12, std::string const& ca_info_path);
    // An empty optional removes the proxy.
    void set_proxy(core::optional<network::proxy> const& proxy);
    core::optional<network::proxy> get_proxy() const;
    // Limit of a whole call, connection and TLS handshake included.
    void set_timeout(std::chrono::milliseconds const& timeout);
    std::chrono::milliseconds get_timeout() const;

protected:
    servico_base();
    servico_base(servico_base const& other);
    servico_base& operator=(servico_base const& other);
    ~servico_base();

    // The text of a value of the request (recipe of core::make_string); when
    // it has none, `Code` (versao_desconhecida, ambiente_desconhecido or
    // estado_desconhecido) is chained with the value.
    template <auto const& Code, class T>
    static std::string checked_text(T const& value, core::result::stack& result)
    {
        std::string text = core::make_string(value, result);
        if (result.has_failed()) {
            core::result::chain<Code>(result, value);
        }
        return text;
    }

    // The same check when the text itself is not used: false on failure.
    template <auto const& Code, class T>
    static bool has_text(T const& value, core::result::stack& result)
    {
        checked_text<Code>(value, result);
        return !result.has_failed();
    }

    // The request's tree as a document; code 9 chained when get_xml fails or
    // the document refuses the tree, and given alone for a tree without name
    // (a request never made).
    template <class Requisicao>
    static xml::document request_document(Requisicao const& requisicao, core::result::stack& result)
    {
        xml::element const root = requisicao.get_xml(result);
        if (result.has_failed()) {
            core::result::chain<servico_result_category::requisicao_invalida>(result);
            return xml::document();
        }
        return request_document(root, result);
    }
    static xml::document request_document(xml::element const& root, core::result::stack& result);

    // The common road: the envelope (make_message, with the nfeCabecMsg of
    // `estado` and `versao_dados`), one exchange with the server described by
    // `servidor`, and the result document taken out of the answer. When the
    // answer holds no result document under one of `valid_names`, code 11 is
    // chained. Any failure gives an empty document.
    xml::document exchange(xml::document const& request, estado estado, std::string const& versao_dados,
                           web_server_info const& servidor, std::vector<std::string> const& valid_names,
                           core::result::stack& result) const;
    // The same for a service that builds its envelope itself.
    xml::document exchange(tarn::detail::soap::message const& request, web_server_info const& servidor,
                           std::vector<std::string> const& valid_names, core::result::stack& result) const;

    // The response read from the result document; code 2 chained when it
    // fails. The response is returned as far as it was read.
    template <class Resposta>
    static Resposta read_response(xml::document const& document, core::result::stack& result)
    {
        Resposta resposta = Resposta::from_xml(document, result);
        if (result.has_failed()) {
            core::result::chain<servico_result_category::resposta_ilegivel>(result, std::string());
        }
        return resposta;
    }

    // exchange, then read_response of the result document; a failed exchange
    // gives a default response.
    template <class Resposta>
    Resposta exchange_and_read(xml::document const& request, estado estado, std::string const& versao_dados,
                               web_server_info const& servidor, std::vector<std::string> const& valid_names,
                               core::result::stack& result) const
    {
        xml::document const answer = exchange(request, estado, versao_dados, servidor, valid_names, result);
        if (result.has_failed()) {
            return Resposta();
        }
        return read_response<Resposta>(answer, result);
    }

private:
    struct impl;
    std::unique_ptr<impl> impl_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::servico
