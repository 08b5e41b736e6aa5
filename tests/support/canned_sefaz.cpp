#include <support/canned_sefaz.hpp>

#include <support/sefaz_simulator.hpp>

#include <httplib.h>

#include <chrono>
#include <mutex>
#include <stdexcept>
#include <thread>

namespace velk::test {

struct canned_sefaz::impl {
    std::string envelope;
    httplib::SSLServer server;
    int port = 0;
    std::thread listening;
    mutable std::mutex guard;
    std::vector<std::string> bodies;

    explicit impl(std::string answer)
        : envelope(std::move(answer)),
          server(sefaz_simulator::pki().server_certificate_file().c_str(),
                 sefaz_simulator::pki().server_key_file().c_str(), sefaz_simulator::pki().ca_file().c_str())
    {
    }
};

canned_sefaz::canned_sefaz(std::string envelope) : impl_(std::make_unique<impl>(std::move(envelope)))
{
    impl& state = *impl_;
    state.server.Post(".*", [&state](httplib::Request const& request, httplib::Response& response) {
        {
            std::lock_guard<std::mutex> const lock(state.guard);
            state.bodies.push_back(request.body);
        }
        response.set_content(state.envelope, "application/soap+xml; charset=utf-8");
    });
    state.port = state.server.bind_to_any_port("127.0.0.1");
    if (state.port <= 0) {
        throw std::runtime_error("canned_sefaz: no port on the loopback");
    }
    state.listening = std::thread([&state] { state.server.listen_after_bind(); });
    // Stopping a server that has not started listening would leave the thread
    // waiting for ever.
    while (!state.server.is_running()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

canned_sefaz::~canned_sefaz()
{
    impl_->server.stop();
    impl_->listening.join();
}

std::string canned_sefaz::url() const { return "https://127.0.0.1:" + std::to_string(impl_->port) + "/ws"; }

std::vector<std::string> canned_sefaz::received() const
{
    std::lock_guard<std::mutex> const lock(impl_->guard);
    return impl_->bodies;
}

std::string soap_answer(std::string const& result_tag, std::string const& document)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?><soap:Envelope "
           "xmlns:soap=\"http://www.w3.org/2003/05/soap-envelope\"><soap:Body><" +
           result_tag + " xmlns=\"http://www.portalfiscal.inf.br/nfe/wsdl/NFeRecepcaoEvento4\">" + document + "</" +
           result_tag + "></soap:Body></soap:Envelope>";
}

}  // namespace velk::test
