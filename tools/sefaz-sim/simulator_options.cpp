#include "simulator_options.hpp"

#include <charconv>
#include <cstring>
#include <functional>
#include <map>

namespace velk::tools::sefaz_sim {

namespace {

bool read_int(std::string const& text, int low, int high, int& value)
{
    int read = 0;
    auto const [end, problem] = std::from_chars(text.data(), text.data() + text.size(), read);
    if (problem != std::errc() || end != text.data() + text.size() || read < low || read > high) {
        return false;
    }
    value = read;
    return true;
}

// The switch that stops every service: short, 108; indefinite, 109.
bool stopped_from_name(std::string const& name, int& status)
{
    if (name == "short" || name == "indefinite") {
        status = name == "short" ? 108 : 109;
        return true;
    }
    return false;
}

}  // namespace

bool simulator_options::parse(int argc, char** argv, simulator_options& options, std::string& error)
{
    using setter = std::function<bool(std::string const&)>;
    std::map<std::string, setter> const with_value = {
        {"--host", [&](std::string const& v) { options.host = v; return true; }},
        {"--port", [&](std::string const& v) { return read_int(v, 0, 65535, options.port); }},
        {"--cert", [&](std::string const& v) { options.certificate = v; return true; }},
        {"--key", [&](std::string const& v) { options.key = v; return true; }},
        {"--client-ca", [&](std::string const& v) { options.client_ca = v; return true; }},
        {"--schemas", [&](std::string const& v) { options.schemas = v; return true; }},
        {"--record", [&](std::string const& v) { options.record = v; return true; }},
        {"--fault", [&](std::string const& v) { return fault_from_name(v, options.injected); }},
        {"--delay-ms", [&](std::string const& v) { return read_int(v, 0, 3600000, options.delay_ms); }},
        {"--tls-max",
         [&](std::string const& v) {
             options.tls_max = v;
             return v == "1.1" || v == "1.2" || v == "1.3";
         }},
        {"--redirect-to", [&](std::string const& v) { options.redirect_to = v; return true; }},
        {"--redirect-status", [&](std::string const& v) { return read_int(v, 300, 399, options.redirect_status); }},
        {"--ambiente", [&](std::string const& v) { options.ambiente = v; return v == "1" || v == "2"; }},
        {"--stopped", [&](std::string const& v) { return stopped_from_name(v, options.stopped_status); }},
        {"--processing-polls", [&](std::string const& v) { return read_int(v, 0, 1000, options.processing_polls); }},
    };
    for (int index = 1; index < argc; ++index) {
        std::string const name = argv[index];
        if (name == "--help" || name == "-h") {
            options.help = true;
            return true;
        }
        if (name == "--verbose") {
            options.verbose = true;
            continue;
        }
        auto const found = with_value.find(name);
        if (found == with_value.end()) {
            error = "unknown option " + name;
            return false;
        }
        if (index + 1 >= argc) {
            error = name + " needs a value";
            return false;
        }
        std::string const value = argv[++index];
        if (!found->second(value)) {
            error = "bad value for " + name + ": " + value;
            return false;
        }
    }
    if (options.certificate.empty() || options.key.empty() || options.client_ca.empty()) {
        error = "--cert, --key and --client-ca are required";
        return false;
    }
    return true;
}

std::string simulator_options::usage()
{
    std::string text =
        "usage: velk-sefaz-sim --cert FILE --key FILE --client-ca FILE [options]\n"
        "\n"
        "A local stand-in for a SEFAZ web service: HTTPS on a loopback address, a\n"
        "client certificate required (mutual TLS), SOAP 1.2 (application/soap+xml).\n"
        "Requests are POSTs of an Envelope whose Body holds nfeDadosMsg with one\n"
        "message; the message's root element chooses the service. It behaves as an\n"
        "authority: what it authorizes or disables it remembers while it runs.\n"
        "  consStatServ   status of the service: retConsStatServ, cStat 107\n"
        "  enviNFe        authorization of a batch: retEnviNFe; indSinc 1 answers 104\n"
        "                 with the protNFe of its one document, indSinc 0 answers 103\n"
        "                 with a receipt. Each document is checked: schema of the batch\n"
        "                 (225), signature (297, 298), environment (252), access key\n"
        "                 (236, 502), disabled number (206), duplicate (204, 539);\n"
        "                 authorized: 100 with nProt and digVal. 452 for a synchronous\n"
        "                 batch of more than one document\n"
        "  consReciNFe    the batch of a receipt: retConsReciNFe, 105 (see\n"
        "                 --processing-polls), then 104 with the protNFe; 106 unknown\n"
        "  consSitNFe     query by access key: retConsSitNFe, 100 with the protNFe of an\n"
        "                 authorized document and the procEventoNFe of its events, 101\n"
        "                 once cancelled, 217 for any other key\n"
        "  envEvento      events: retEnvEvento 128 with a retEvento each. Each event is\n"
        "                 checked: schema of the frame (215 for the whole batch), its\n"
        "                 type's schema (215), signature (297, 298), environment (252),\n"
        "                 key (236); a cancellation or correction letter needs a note\n"
        "                 authorized (217) and not cancelled (580), a cancellation its\n"
        "                 protocol number (222); the same key, type and sequence again\n"
        "                 is 573. Registered: 135 with nProt, signed with the server's\n"
        "                 key; 136 for an EPEC or manifestation of a key never\n"
        "                 authorized here. 999 for a type without rules here\n"
        "  inutNFe        disablement of a range: retInutNFe signed with the server's\n"
        "                 key, 102; 563 for a range that meets one disabled before, 241\n"
        "                 for a range holding an authorized number, 297/298 signature\n"
        "  consGTIN       the GTIN catalogue, its Body wrapped in ccgConsGTIN and the\n"
        "                 answer in ccgConsGTINResponse: 9490 with the product, 9494\n"
        "                 for a GTIN not in the catalogue\n"
        "Whatever the path of the URL, the same services answer. Every answer carries\n"
        "the environment of --ambiente, and a message of the other one gets 252.\n"
        "\n"
        "  --cert FILE       server certificate (PEM)\n"
        "  --key FILE        its private key (PEM, unencrypted)\n"
        "  --client-ca FILE  CA certificate (PEM) that must have signed the client's\n"
        "                    certificate; a client without one is refused in the handshake\n"
        "  --host ADDRESS    address to listen on (default 127.0.0.1)\n"
        "  --port N          port to listen on; 0 (the default) picks a free one.\n"
        "                    The port is printed as the first line on stdout.\n"
        "  --schemas DIR     folder of the official NF-e schemas: each message is\n"
        "                    validated against <root>_v<versao>.xsd, and a message that\n"
        "                    fails is answered with cStat 215 (225 for a batch; 239 for\n"
        "                    an unknown version)\n"
        "  --record DIR      write each request into DIR: NNNN.xml the body as received,\n"
        "                    NNNN.headers the HTTP request line and headers\n"
        "  --fault KIND      answer every request wrongly, one of:\n";
    for (fault_kind const& kind : fault_kinds()) {
        std::string name(kind.name);
        name.resize(18, ' ');
        text += "                      " + name + std::string(kind.description) + "\n";
    }
    text +=
        "  --delay-ms N      the wait of --fault delay (default 3000)\n"
        "  --tls-max V       highest TLS version offered, 1.2 or 1.3 (default). Under 1.2\n"
        "                    a refused client certificate ends the handshake; under 1.3\n"
        "                    the client learns it only when it sends or reads.\n"
        "                    1.1 makes an obsolete server: TLS 1.1 only, with RSA key\n"
        "                    exchange (no forward secrecy) at OpenSSL security level 0,\n"
        "                    and no client certificate asked for\n"
        "  --redirect-to URL answer every request with a redirect to URL\n"
        "  --redirect-status N  its HTTP status (default 307, or 308: both keep the POST)\n"
        "  --ambiente N      environment of this authority: 2 homologation (default), 1\n"
        "                    production\n"
        "  --stopped HOW     every service answers \"stopped\": short (108) or\n"
        "                    indefinite (109)\n"
        "  --processing-polls N  receipt queries answered 105 \"in processing\" before\n"
        "                    the batch's result (default 1)\n"
        "  --verbose         one line per request on stderr\n"
        "  --help            this text\n"
        "\n"
        "A request that is not an envelope of that shape, or whose message no service\n"
        "answers, gets a SOAP Fault: soap:Sender with HTTP status 400, or\n"
        "soap:VersionMismatch with 500 for an envelope of another SOAP version.\n"
        "Another content type than application/soap+xml gets HTTP 415.\n";
    return text;
}

}  // namespace velk::tools::sefaz_sim
