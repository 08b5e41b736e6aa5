#include "validar_findings.hpp"

#include "tarn_authority.hpp"
#include "tarn_process.hpp"

#include <support/files.hpp>
#include <support/xmlsec.hpp>

#include <gtest/gtest.h>

#include <sstream>

namespace velk::test {

namespace {

constexpr char nfe_namespace[] = "http://www.portalfiscal.inf.br/nfe";

// The element whose Id the first signature of a message refers to.
std::string first_signed(std::string const& text)
{
    for (char const* name : {"infNFe", "infEvento", "infInut"}) {
        if (text.find(std::string("<") + name + " ") != std::string::npos) {
            return std::string(nfe_namespace) + ":" + name;
        }
    }
    return std::string();
}

}  // namespace

validar_findings validar_findings::of(std::filesystem::path const& file,
                                      std::vector<std::pair<std::string, std::string>> const& environment)
{
    tarn_run const run = run_tarn({"validar", file.string()}, environment);
    validar_findings found;
    found.status = run.status;
    found.text = run.both();
    std::istringstream lines(run.output);
    std::string line;
    while (std::getline(lines, line)) {
        if (line.rfind("  ", 0) != 0) {
            continue;
        }
        std::size_t const colon = line.find(": ");
        if (colon == std::string::npos) {
            continue;
        }
        std::string const check = line.substr(2, colon - 2);
        std::string rest = line.substr(colon + 2);
        if (check == "tipo") {
            found.type = rest;
            continue;
        }
        std::size_t const dash = rest.find(" - ");
        std::string const detail = dash == std::string::npos ? std::string() : rest.substr(dash + 3);
        rest = rest.substr(0, dash);
        found.checks.emplace(check, std::make_pair(rest, detail));
    }
    return found;
}

std::string validar_findings::result(std::string const& check) const
{
    auto const found = checks.find(check);
    return found == checks.end() ? std::string() : found->second.first;
}

std::string validar_findings::detail(std::string const& check) const
{
    auto const found = checks.find(check);
    return found == checks.end() ? std::string() : found->second.second;
}

void expect_agreement(std::filesystem::path const& file)
{
    SCOPED_TRACE(file.string());
    validar_findings const found = validar_findings::of(file);
    std::string const schema_result = found.result("esquema");
    if (schema_result == "ok" || schema_result == "FALHOU") {
        std::string const detail = found.detail("esquema");
        std::string const xsd = detail.substr(0, detail.find(".xsd") + 4);
        EXPECT_EQ(schema_result == "ok", xmllint_accepts(tarn_data() / "schemas" / xsd, file))
            << "tarn validar and xmllint --schema " << xsd << " differ:\n"
            << found.text;
    }
    std::string const signature_result = found.result("assinatura");
    if (signature_result == "ok" || signature_result == "FALHOU") {
        std::string const text = read_text(file);
        xmlsec_result const xmlsec = xmlsec_verify(text, first_signed(text), "");
        EXPECT_EQ(signature_result == "ok", xmlsec.success) << "tarn validar and xmlsec1 --verify differ:\n"
                                                            << found.text << "\n"
                                                            << xmlsec.output;
    }
}

}  // namespace velk::test
