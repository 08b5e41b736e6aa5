#include <support/canned_authority.hpp>

#include <support/sefaz_simulator.hpp>

#include <httplib.h>

#include <chrono>
#include <mutex>
#include <stdexcept>
#include <thread>

namespace velk::test {

struct canned_authority::impl {
    std::string answer;
    httplib::SSLServer server;
    int port = 0;
    std::thread listener;
    mutable std::mutex lock;
    std::vector<std::string> bodies;

    explicit impl(std::string canned)
        : answer(std::move(canned)),
          server(sefaz_simulator::pki().server_certificate_file().c_str(),
                 sefaz_simulator::pki().server_key_file().c_str(), sefaz_simulator::pki().ca_file().c_str())
    {
    }
};

canned_authority::canned_authority(std::string answer) : impl_(std::make_unique<impl>(std::move(answer)))
{
    impl& self = *impl_;
    if (!self.server.is_valid()) {
        throw std::runtime_error("canned_authority: the loopback certificates do not load");
    }
    self.server.Post(".*", [&self](httplib::Request const& request, httplib::Response& response) {
        {
            std::lock_guard<std::mutex> const hold(self.lock);
            self.bodies.push_back(request.body);
        }
        response.set_content(self.answer, "application/soap+xml; charset=utf-8");
    });
    self.port = self.server.bind_to_any_port("127.0.0.1");
    if (self.port <= 0) {
        throw std::runtime_error("canned_authority: no loopback port");
    }
    self.listener = std::thread([&self] { self.server.listen_after_bind(); });
    // stop() only ends a server that runs: wait for the loop to start.
    while (!self.server.is_running()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

canned_authority::~canned_authority()
{
    impl_->server.stop();
    impl_->listener.join();
}

std::string canned_authority::url() const { return "https://127.0.0.1:" + std::to_string(impl_->port) + "/ws"; }

std::vector<std::string> canned_authority::received() const
{
    std::lock_guard<std::mutex> const hold(impl_->lock);
    return impl_->bodies;
}

std::string soap_envelope(std::string const& result_tag, std::string const& inside)
{
    return "<soap:Envelope xmlns:soap=\"http://www.w3.org/2003/05/soap-envelope\"><soap:Body><" + result_tag +
           " xmlns=\"http://www.portalfiscal.inf.br/nfe/wsdl/Servico4\">" + inside + "</" + result_tag +
           "></soap:Body></soap:Envelope>";
}

}  // namespace velk::test
