#pragma once

#include <velk/core/export.hpp>

#include <string>

namespace velk::network {
inline namespace v3 {

// An HTTP proxy to go through: host, port and, where the proxy asks for them,
// user and password.
class VELK_EXPORT proxy {
public:
    proxy() = default;
    proxy(std::string host, unsigned int port, std::string user = {}, std::string password = {});

    std::string const& get_host() const { return host_; }
    unsigned int get_port() const { return port_; }
    std::string const& get_user() const { return user_; }
    std::string const& get_password() const { return password_; }

private:
    std::string host_;
    unsigned int port_ = 0;
    std::string user_;
    std::string password_;
};

}  // namespace v3
}  // namespace velk::network
