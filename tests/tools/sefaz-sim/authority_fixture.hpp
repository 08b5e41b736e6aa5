#pragma once

// An authority in the test's own process and the messages put to it: the
// simulator's web services with the loopback certificates and the official
// schemas, and requests written by hand or from the test notes.

#include <sefaz-sim/web_services.hpp>
#include <support/xml_text.hpp>
#include <velk/erp/fiscal/nota_fiscal.hpp>
#include <velk/xml/element.hpp>

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velk::test {

// The message an answer carries (retEnviNFe, ...) and the envelope it came in.
struct sefaz_answer {
    xml::element message;
    std::string envelope;

    // The text at the end of a path of child names under the message; empty
    // when absent.
    std::string at(std::initializer_list<std::string_view> path) const;
    bool has(std::initializer_list<std::string_view> path) const;
    int status() const;  // cStat, or infInut/cStat of a retInutNFe
};

class test_authority {
public:
    // `options` are added to the command line (--ambiente 1, ...).
    explicit test_authority(std::vector<std::string> const& options = {});
    ~test_authority();

    // The message inside an envelope to the service's namespace, and the
    // message of the answer. Each answer is checked against the schema of its
    // root and version: a test fails on any that does not validate.
    sefaz_answer ask(std::string const& message);
    // The raw exchange, for answers that are no fiscal message.
    tools::sefaz_sim::web_services::reply exchange(std::string const& envelope);

private:
    std::unique_ptr<tools::sefaz_sim::web_services> services_;
};

// The SOAP 1.2 envelope the services take: nfeDadosMsg in the service's
// namespace, or for consGTIN the operation element around it.
std::string envelope_of(std::string const& message);

// Requests, written by hand.
std::string batch(std::vector<std::string> const& documents, bool synchronous, std::string const& versao = "4.00");
std::string query_by_key(std::string const& key, char const* ambiente = "2");
std::string receipt_query(std::string const& receipt, char const* ambiente = "2");
std::string gtin_query(std::string const& gtin);
std::string status_query(char const* ambiente = "2");

// A signed inutNFe of the issuer, model 55, year 24, in São Paulo.
std::string disablement(std::string const& cnpj, unsigned series, unsigned first, unsigned last,
                        char const* ambiente = "2");

// The NFe element of a note, as text, before and after signing; signing
// takes the key from the Id of infNFe.
std::string unsigned_document(erp::fiscal::nota_fiscal const& nota);
std::string signed_document(std::string const& unsigned_text);
std::string signed_document(erp::fiscal::nota_fiscal const& nota);
// An NF-e and an NFC-e of the test notes with that number, signed.
std::string nfe_number(unsigned number);
std::string nfce_number(unsigned number);

// The element signed by the test taxpayer, its child of that Id, as text
// without the XML declaration.
std::string signed_element(xml::element root, std::string const& id);

// The 44 digits of the Id of infNFe of a document's text, and the values
// between the first pair of tags of that name.
std::string key_of(std::string const& document);
std::string first_text(std::string const& xml, std::string const& tag);
// The text with every `from` replaced by `to`; fails the test when there is
// none.
std::string replaced(std::string text, std::string const& from, std::string const& to);

}  // namespace velk::test
