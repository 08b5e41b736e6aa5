#include <velk/network/proxy.hpp>

#include <utility>

namespace velk::network {
inline namespace v3 {

proxy::proxy(std::string host, unsigned int port, std::string user, std::string password)
    : host_(std::move(host)), port_(port), user_(std::move(user)), password_(std::move(password))
{
}

}  // namespace v3
}  // namespace velk::network
