#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/tarn/ambiente.hpp>

#include <memory>
#include <string>

namespace velk::erp::inline v4::tarn::nfe {

// The caller's description of one web service of one authorizer: the library
// holds no address, action or namespace of any authority, so every call gets
// them from here.
class VELK_EXPORT web_server_info {
public:
    web_server_info();
    web_server_info(web_server_info const& other);
    web_server_info(web_server_info&& other) noexcept;
    web_server_info& operator=(web_server_info const& other);
    web_server_info& operator=(web_server_info&& other) noexcept;
    ~web_server_info();

    // Address of the POST.
    std::string get_endpoint_url() const;
    void set_endpoint_url(std::string const& value);
    // SOAP action, sent in the HTTP headers.
    std::string get_action_url() const;
    void set_action_url(std::string const& value);
    // Namespace of the service's tags (nfeDadosMsg, nfeCabecMsg).
    std::string get_namespace_url() const;
    void set_namespace_url(std::string const& value);
    // Its prefix; empty makes it the default namespace of the envelope.
    std::string get_namespace_prefix() const;
    void set_namespace_prefix(std::string const& value);
    // Form of the SOAP header: "com_namespace" (prefix on every header tag),
    // "sem_namespace" (prefix on nfeCabecMsg only), anything else for none.
    std::string get_namespace_header() const;
    void set_namespace_header(std::string const& value);

    // Carried for the caller; no service reads them.
    ambiente get_ambiente() const;
    void set_ambiente(ambiente const& value);
    bool is_async();
    void set_async(bool value);

private:
    struct impl;
    std::unique_ptr<impl> impl_;
};

}  // namespace velk::erp::inline v4::tarn::nfe
