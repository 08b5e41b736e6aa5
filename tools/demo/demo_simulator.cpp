#include "demo_simulator.hpp"

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <vector>

namespace velk::demo {

namespace {

std::vector<std::string> arguments(tools::sefaz_sim::loopback_pki const& pki, std::filesystem::path const& record)
{
    std::vector<std::string> words = pki.server_arguments();
    words.insert(words.end(), {"--record", record.string()});
    return words;
}

}  // namespace

demo_simulator::folder::folder(std::string const& name)
    : path(std::filesystem::temp_directory_path() / ("velk-demo-" + name + "-" + std::to_string(getpid())))
{
    std::filesystem::create_directories(path);
}

demo_simulator::folder::~folder()
{
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
}

demo_simulator::demo_simulator(std::string const& name)
    : work_(name), pki_(work_.path / "pki"),
      process_(tools::sefaz_sim::simulator_process::beside_this_program(), arguments(pki_, work_.path / "record"))
{
}

demo_simulator::~demo_simulator() = default;

erp::tarn::nfe::web_server_info demo_simulator::server(std::string const& service,
                                                       std::string const& operation) const
{
    std::string const wsdl = "http://www.portalfiscal.inf.br/nfe/wsdl/" + service;
    erp::tarn::nfe::web_server_info info;
    info.set_endpoint_url(process_.url("/ws/" + service + "/" + service + ".asmx"));
    info.set_action_url(wsdl + "/" + operation);
    info.set_namespace_url(wsdl);
    return info;
}

std::string demo_simulator::recorded_request(unsigned number) const
{
    char stem[16];
    std::snprintf(stem, sizeof stem, "%04u.xml", number);
    std::ifstream in(work_.path / "record" / stem, std::ios::binary);
    std::ostringstream contents;
    contents << in.rdbuf();
    return contents.str();
}

}  // namespace velk::demo
