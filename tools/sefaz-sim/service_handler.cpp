#include "service_handler.hpp"

#include "authorization_handler.hpp"
#include "disablement_handler.hpp"
#include "event_handler.hpp"
#include "gtin_handler.hpp"
#include "protocol_query_handler.hpp"
#include "receipt_handler.hpp"
#include "status_handler.hpp"

namespace velk::tools::sefaz_sim {

service_handler::~service_handler() = default;

std::map<std::string, std::unique_ptr<service_handler>, std::less<>> service_handler::all(
    service_context const& context)
{
    std::unique_ptr<service_handler> services[] = {
        std::make_unique<status_handler>(context),         std::make_unique<authorization_handler>(context),
        std::make_unique<receipt_handler>(context),        std::make_unique<protocol_query_handler>(context),
        std::make_unique<disablement_handler>(context),    std::make_unique<gtin_handler>(context),
        std::make_unique<event_handler>(context),
    };
    std::map<std::string, std::unique_ptr<service_handler>, std::less<>> by_root;
    for (auto& service : services) {
        std::string root(service->payload_root());
        by_root.emplace(std::move(root), std::move(service));
    }
    return by_root;
}

}  // namespace velk::tools::sefaz_sim
