#pragma once

#include <sefaz-sim/launch/loopback_pki.hpp>
#include <sefaz-sim/launch/simulator_process.hpp>
#include <velk/erp/tarn/nfe/web_server_info.hpp>

#include <filesystem>
#include <string>

namespace velk::demo {

// The local SEFAZ simulator for one step of the demo: throw-away certificates
// and the record of what reached it in a temporary folder, removed when the
// step ends.
class demo_simulator {
public:
    // `name` makes the folder's name.
    explicit demo_simulator(std::string const& name);
    ~demo_simulator();
    demo_simulator(demo_simulator const&) = delete;
    demo_simulator& operator=(demo_simulator const&) = delete;

    tools::sefaz_sim::loopback_pki const& pki() const { return pki_; }
    // The endpoint, action and namespace of one web service of the simulator.
    erp::tarn::nfe::web_server_info server(std::string const& service, std::string const& operation) const;
    // The body of the `number`th request that reached the simulator, from 1.
    std::string recorded_request(unsigned number) const;

private:
    struct folder {
        std::filesystem::path path;
        explicit folder(std::string const& name);
        ~folder();
    };

    folder work_;
    tools::sefaz_sim::loopback_pki pki_;
    tools::sefaz_sim::simulator_process process_;
};

}  // namespace velk::demo
