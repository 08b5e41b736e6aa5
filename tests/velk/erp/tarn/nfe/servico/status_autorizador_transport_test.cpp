// What the transport promises beyond a single exchange: a redirect never
// carries the signed envelope out of TLS, an answer that never ends costs no
// more than the limit, and calls from many threads at once are independent.
#include <velk/erp/tarn/detail/soap/connection.hpp>
#include <velk/erp/tarn/detail/soap/curl_result_category.hpp>
#include <velk/erp/tarn/nfe/servico_result_category.hpp>

#include <support/canned_authority.hpp>
#include <support/sefaz_simulator.hpp>

#include "status_exchange_teste.hpp"

#include <gtest/gtest.h>

#include <curl/curl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <fstream>
#include <latch>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

namespace nfe = velk::erp::tarn::nfe;
namespace soap = velk::erp::tarn::detail::soap;
using velk::core::result::stack;
using velk::test::sefaz_simulator;
using namespace velk::test::status_exchange;

// A plain TCP port on the loopback that keeps whatever arrives: where a
// redirect to http:// would deliver the envelope in clear.
class clear_text_listener {
public:
    clear_text_listener()
    {
        socket_ = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        ::bind(socket_, reinterpret_cast<sockaddr*>(&address), size);
        ::listen(socket_, 4);
        ::getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &size);
        port_ = ntohs(address.sin_port);
        reader_ = std::thread([this] { serve(); });
    }
    ~clear_text_listener()
    {
        stop_ = true;
        reader_.join();
        ::close(socket_);
    }

    std::string url() const { return "http://127.0.0.1:" + std::to_string(port_) + "/ws/NFeStatusServico4.asmx"; }
    std::string received() const
    {
        std::lock_guard const lock(mutex_);
        return received_;
    }

private:
    // Each connection is read until it is quiet for a moment, then closed
    // without an answer.
    void serve()
    {
        while (!stop_) {
            pollfd waiting{socket_, POLLIN, 0};
            if (::poll(&waiting, 1, 50) <= 0) {
                continue;
            }
            int const peer = ::accept(socket_, nullptr, nullptr);
            char chunk[4096];
            pollfd reading{peer, POLLIN, 0};
            while (::poll(&reading, 1, 300) > 0) {
                ssize_t const count = ::read(peer, chunk, sizeof chunk);
                if (count <= 0) {
                    break;
                }
                std::lock_guard const lock(mutex_);
                received_.append(chunk, static_cast<std::size_t>(count));
            }
            ::close(peer);
        }
    }

    int socket_ = -1;
    int port_ = 0;
    std::atomic<bool> stop_{false};
    mutable std::mutex mutex_;
    std::string received_;
    std::thread reader_;
};

TEST(status_autorizador_transport, a_redirect_is_followed_to_https_only)
{
    clear_text_listener const clear_text;
    sefaz_simulator const secure_target;
    for (int const status : {307, 308}) {
        SCOPED_TRACE(status);
        sefaz_simulator const to_clear({"--redirect-to", clear_text.url(), "--redirect-status", std::to_string(status)});
        stack result;
        ready_service().executar(status_request(), server_at(to_clear.url()), result);
        ASSERT_TRUE(result.has_failed());
        EXPECT_EQ(result.get_category(), soap::curl_result_category::instance()) << result.to_string();
        EXPECT_EQ(result.get_value(), 24) << result.to_string();
        EXPECT_EQ(*result.top().find_argument("curl_code"), std::to_string(CURLE_UNSUPPORTED_PROTOCOL));
        EXPECT_EQ(to_clear.recorded_requests().size(), 1u);

        sefaz_simulator const to_secure(
            {"--redirect-to", secure_target.url(), "--redirect-status", std::to_string(status)});
        result.reset();
        auto const answer = ready_service().executar(status_request(), server_at(to_secure.url()), result);
        ASSERT_FALSE(result.has_failed()) << result.to_string();
        EXPECT_EQ(answer.get_codigo_status(), 107);
    }
    EXPECT_EQ(clear_text.received(), "");
    EXPECT_EQ(secure_target.recorded_requests().size(), 2u) << "the envelope goes on to an https target";
}

// Resident memory of the process at its peak since the last reset_peak, in
// bytes.
std::size_t peak_resident_bytes()
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind("VmHWM:", 0) == 0) {
            return std::stoull(line.substr(6)) * 1024;
        }
    }
    ADD_FAILURE() << "no VmHWM in /proc/self/status";
    return 0;
}

void reset_peak()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

// Answers made as they are sent, up to 200 MB: one over the limit stops the
// transfer where the limit falls, whether its length was announced or not,
// and the process never holds it; one of exactly the limit is read.
TEST(status_autorizador_transport, an_answer_beyond_the_limit_is_refused_as_it_arrives)
{
    constexpr std::size_t limit = soap::connection::largest_answer;
    constexpr std::size_t megabyte = 1024 * 1024;
    // The answer at most and the copies its reading makes: well below the 200
    // MB sent. AddressSanitizer keeps freed memory aside for a while (the
    // answer's former buffers, the server's pieces), which still stays below
    // what holding the whole answer would cost there, twice its size at least.
#if defined(__SANITIZE_ADDRESS__)
    constexpr std::size_t most_growth = 16 * limit;
#else
    constexpr std::size_t most_growth = 4 * limit;
#endif
    std::string const status_answer = velk::test::soap_envelope(
        "nfeResultMsg",
        "<retConsStatServ versao=\"4.00\" xmlns=\"http://www.portalfiscal.inf.br/nfe\"><tpAmb>2</tpAmb>"
        "<verAplic>SP</verAplic><cStat>107</cStat><xMotivo>Servico em Operacao</xMotivo><cUF>35</cUF>"
        "<dhRecbto>2024-05-15T09:00:00-03:00</dhRecbto></retConsStatServ>");
    struct case_ {
        char const* what;
        std::size_t size;
        bool chunked;
        bool refused;
    };
    case_ const cases[] = {
        {"200 MB, length announced", 200 * megabyte, false, true},
        {"200 MB, chunked without a length", 200 * megabyte, true, true},
        {"one byte over the limit", limit + 1, true, true},
        {"exactly the limit", limit, true, false},
    };
    for (auto const& each : cases) {
        SCOPED_TRACE(each.what);
        velk::test::canned_authority const authority(
            velk::test::canned_authority::streamed_answer{status_answer, each.size, each.chunked});
        reset_peak();
        std::size_t const before = peak_resident_bytes();
        stack result;
        auto const answer = ready_service(std::chrono::milliseconds(120000))
                                .executar(status_request(), server_at(authority.url()), result);
        EXPECT_LT(peak_resident_bytes() - before, most_growth);
        if (!each.refused) {
            EXPECT_FALSE(result.has_failed()) << result.to_string();
            EXPECT_EQ(answer.get_codigo_status(), 107);
            continue;
        }
        ASSERT_EQ(result.size(), 2u) << result.to_string();
        EXPECT_EQ(result.get_category(), nfe::servico_result_category::instance());
        EXPECT_EQ(result.get_value(), nfe::servico_result_category::resposta_ilegivel.value);
        EXPECT_EQ(*result.top().find_argument("description"),
                  "A resposta da receita excede o limite de 10000000 bytes");
        auto const& transport = *result.begin();
        EXPECT_EQ(transport.get_value(), soap::curl_result_category::erro_escrita.value);
    }
}

// One service object and one simulator for all: the certificate, the
// libcurl set-up and the XML parser are the only things the threads share.
TEST(status_autorizador_transport, status_queries_from_eight_threads_at_once)
{
    constexpr int threads = 8;
    constexpr int queries_each = 3;
    sefaz_simulator const simulator;
    nfe::servico::status_autorizador const service = ready_service(std::chrono::milliseconds(60000));
    nfe::web_server_info const server = server_at(simulator.url());
    std::latch start(threads);
    std::vector<std::string> failures(threads);
    std::vector<int> answered(threads, 0);
    std::vector<std::thread> running;
    for (int index = 0; index < threads; ++index) {
        running.emplace_back([&, index] {
            start.arrive_and_wait();
            for (int query = 0; query < queries_each; ++query) {
                stack result;
                auto const status = service.executar(status_request(), server, result);
                if (result.has_failed()) {
                    failures[index] += result.to_string() + "\n";
                } else if (status.get_codigo_status() == 107) {
                    ++answered[index];
                }
            }
        });
    }
    for (std::thread& each : running) {
        each.join();
    }
    for (int index = 0; index < threads; ++index) {
        EXPECT_EQ(failures[index], "") << "thread " << index;
        EXPECT_EQ(answered[index], queries_each) << "thread " << index;
    }
    EXPECT_EQ(simulator.recorded_requests().size(), std::size_t{threads * queries_each});
}

}  // namespace
