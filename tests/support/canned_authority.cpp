#include <support/canned_authority.hpp>

#include <support/sefaz_simulator.hpp>

#include <httplib.h>

#include <algorithm>
#include <chrono>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <thread>

namespace velk::test {

namespace {

// What a streamed answer sends at a time.
constexpr std::size_t piece = 64 * 1024;

// The bytes of a streamed answer from `offset` on, at most `length` of them.
std::string streamed_piece(canned_authority::streamed_answer const& answer, std::size_t offset, std::size_t length)
{
    std::size_t const end = std::min(answer.size, offset + length);
    std::string piece;
    if (offset < answer.head.size()) {
        piece = answer.head.substr(offset, end - offset);
    }
    piece.resize(end > offset ? end - offset : 0, ' ');
    return piece;
}

}  // namespace

struct canned_authority::impl {
    std::string answer;
    std::optional<streamed_answer> streamed;
    httplib::SSLServer server;
    int port = 0;
    std::thread listener;
    mutable std::mutex lock;
    std::vector<std::string> bodies;

    impl(std::string canned, std::optional<streamed_answer> long_answer)
        : answer(std::move(canned)),
          streamed(std::move(long_answer)),
          server(sefaz_simulator::pki().server_certificate_file().c_str(),
                 sefaz_simulator::pki().server_key_file().c_str(), sefaz_simulator::pki().ca_file().c_str())
    {
    }
};

canned_authority::canned_authority(std::string answer) : canned_authority(std::move(answer), std::nullopt) {}

canned_authority::canned_authority(streamed_answer answer) : canned_authority(std::string(), std::move(answer)) {}

canned_authority::canned_authority(std::string answer, std::optional<streamed_answer> streamed)
    : impl_(std::make_unique<impl>(std::move(answer), std::move(streamed)))
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
        char const* const type = "application/soap+xml; charset=utf-8";
        if (!self.streamed) {
            response.set_content(self.answer, type);
            return;
        }
        // A client that stops reading makes a write fail, which ends the answer.
        streamed_answer const& streamed = *self.streamed;
        if (streamed.chunked) {
            response.set_chunked_content_provider(type, [&streamed](std::size_t offset, httplib::DataSink& sink) {
                std::string const bytes = streamed_piece(streamed, offset, piece);
                if (bytes.empty()) {
                    sink.done();
                    return true;
                }
                return sink.write(bytes.data(), bytes.size());
            });
        } else {
            response.set_content_provider(
                streamed.size, type, [&streamed](std::size_t offset, std::size_t length, httplib::DataSink& sink) {
                    std::string const bytes = streamed_piece(streamed, offset, std::min(length, piece));
                    return sink.write(bytes.data(), bytes.size());
                });
        }
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
