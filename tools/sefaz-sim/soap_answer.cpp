#include "soap_answer.hpp"

#include "answer_text.hpp"

namespace velk::tools::sefaz_sim {

namespace {

constexpr std::string_view declaration = "<?xml version=\"1.0\" encoding=\"utf-8\"?>";
constexpr std::string_view envelope_open =
    "<soap:Envelope xmlns:soap=\"http://www.w3.org/2003/05/soap-envelope\" "
    "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xmlns:xsd=\"http://www.w3.org/2001/XMLSchema\">";
constexpr std::string_view envelope_close = "</soap:Envelope>";

}  // namespace

std::string soap_answer::result(std::string_view service_namespace, std::string_view result_tag,
                                std::string_view message, layout form)
{
    std::string const tag(result_tag);
    std::string const body = "<soap:Body><" + tag + " xmlns=\"" + std::string(service_namespace) + "\">" +
                             std::string(message) + "</" + tag + "></soap:Body>";
    std::string out(declaration);
    switch (form) {
    case layout::compact:
        out += std::string(envelope_open) + body + std::string(envelope_close);
        break;
    case layout::pretty:
        out += "\n" + std::string(envelope_open) + "\n    " + body + "\n" + std::string(envelope_close) + "\n";
        break;
    case layout::two_bodies:
        out += std::string(envelope_open) + body + body + std::string(envelope_close);
        break;
    }
    return out;
}

std::string soap_answer::fault(std::string_view code, std::string_view reason, std::string_view detail)
{
    std::string out(declaration);
    out += envelope_open;
    out += "<soap:Body><soap:Fault><soap:Code><soap:Value>" + std::string(code) +
           "</soap:Value></soap:Code><soap:Reason><soap:Text xml:lang=\"pt-BR\">" + answer_text::escaped(reason) +
           "</soap:Text></soap:Reason>";
    if (!detail.empty()) {
        out += "<soap:Detail>" + std::string(detail) + "</soap:Detail>";
    }
    out += "</soap:Fault></soap:Body>";
    out += envelope_close;
    return out;
}

}  // namespace velk::tools::sefaz_sim
