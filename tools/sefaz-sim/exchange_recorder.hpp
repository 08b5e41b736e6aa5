#pragma once

#include <atomic>
#include <filesystem>
#include <string>

namespace httplib {
struct Request;
}

namespace velk::tools::sefaz_sim {

// Writes each request into a folder as it arrived: NNNN.xml the body,
// NNNN.headers the request line and the headers, numbered from 0001 in the
// order of arrival.
class exchange_recorder {
public:
    // An empty folder records nothing.
    explicit exchange_recorder(std::filesystem::path folder);

    void record(httplib::Request const& request);

private:
    std::filesystem::path folder_;
    std::atomic<unsigned> count_{0};
};

}  // namespace velk::tools::sefaz_sim
