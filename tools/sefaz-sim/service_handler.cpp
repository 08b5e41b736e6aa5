#include "service_handler.hpp"

#include "status_handler.hpp"

namespace velk::tools::sefaz_sim {

service_handler::~service_handler() = default;

std::map<std::string, std::unique_ptr<service_handler>, std::less<>> service_handler::all()
{
    std::unique_ptr<service_handler> services[] = {
        std::make_unique<status_handler>(),
    };
    std::map<std::string, std::unique_ptr<service_handler>, std::less<>> by_root;
    for (auto& service : services) {
        std::string root(service->payload_root());
        by_root.emplace(std::move(root), std::move(service));
    }
    return by_root;
}

}  // namespace velk::tools::sefaz_sim
