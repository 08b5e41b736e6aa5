#include "resource_usage.hpp"

#include <filesystem>
#include <fstream>
#include <string>

namespace velk::tools::tarn {

resource_usage resource_usage::now()
{
    resource_usage usage;
    std::error_code ignored;
    for (auto it = std::filesystem::directory_iterator("/proc/self/fd", ignored);
         it != std::filesystem::directory_iterator(); it.increment(ignored)) {
        ++usage.descriptors;
    }
    // The listing itself held one open.
    usage.descriptors = usage.descriptors > 0 ? usage.descriptors - 1 : 0;
    std::ifstream status("/proc/self/status");
    std::string field;
    while (status >> field) {
        if (field == "Threads:") {
            status >> usage.threads;
        } else if (field == "VmRSS:") {
            status >> usage.resident_kib;
        }
    }
    return usage;
}

json_value resource_usage::to_json() const
{
    return json_value::object()
        .set("descritores", json_value::number(descriptors))
        .set("threads", json_value::number(threads))
        .set("memoria_kib", json_value::number(resident_kib));
}

}  // namespace velk::tools::tarn
