// A C++ caller of the installed library, built by gerar_url_qrcode_test.py
// against the installed headers and the shared libraries alone, through
// pkg-config. todos_os_cabecalhos.hpp, written by the script, includes every
// installed header, so that none of them needs one that was left out. The
// classes then give the address the exported C function gives, and a
// failure's category is the same object on both sides of the libraries.
//
//   consumidor <note.json> <consultation page> <csc> <infNFe file>
#include "todos_os_cabecalhos.hpp"

#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

namespace {

namespace nfe = velk::erp::tarn::nfe;
using velk::core::result::stack;

int fail(std::string const& what, stack const& s = stack())
{
    std::cerr << what << '\n' << s.to_string() << '\n';
    return 1;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 5) {
        return fail("usage: consumidor <note.json> <page> <csc> <infNFe file>");
    }
    std::ifstream file(argv[1]);
    std::stringstream text;
    text << file.rdbuf();
    std::string const page = argv[2];
    std::string const csc = argv[3];

    stack s;
    velk::internal::nfe::serialization::NotaFiscal nota;
    if (!nfe::protobuf::ler_nota_json(text.str(), nota, s)) {
        return fail("ler_nota_json", s);
    }
    velk::xml::document document = nfe::protobuf::generate_document_4_00(nota, s);
    auto fiscal = nfe::sefaz_data::requisicao::documento_fiscal::from_xml(document, s);
    if (s.has_failed()) {
        return fail("generation", s);
    }

    // A failure raised inside the library is recognised by its category here.
    nfe::informacoes_adicionais const informacoes(nfe::versao_qrcode::versao_200,
                                                  std::optional<std::string>("http://www.nfce.exemplo.gov.br/c"), page);
    nfe::obter_url_qrcode(informacoes, document, "000001", "", s);
    if (!s.has_failed() || s.get_category() != nfe::processo_gerar_qrcode_result_category::instance() ||
        s.get_value() != 2) {
        return fail("an empty CSC is code 2 of processo_gerar_qrcode_result_category", s);
    }
    s.reset();

    fiscal.gerar_qrcode(informacoes, "000001", csc, s);
    if (s.has_failed() || !fiscal.get_qrcode_value().has_value()) {
        return fail("gerar_qrcode", s);
    }
    char url[1024];
    std::uint32_t size = sizeof url;
    std::int32_t const result =
        velkerp_tarn_nfe_gerar_url_qrcode_v2(text.str().c_str(), 1, csc.c_str(), url, &size, argv[4], 2);
    if (result != VELKERP_TARN_NFE_SUCESSO || *fiscal.get_qrcode_value() != url) {
        return fail("the classes give " + *fiscal.get_qrcode_value() + "\nthe C function " + std::to_string(result) +
                    " " + url);
    }
    return 0;
}
