// A note as JSON handed to the two exported C functions, as a point-of-sale
// program hands it: whatever the text, a result from 0 to 5 and no crash; the
// text is refused as JSON (2) exactly when the library's reader refuses it;
// an address comes with its length, and a file written holds infNFe alone.

#include "fuzz_input.hpp"

#include <velk/erp/tarn/nfe/protobuf/nota_json.hpp>
#include <velk/erp/tarn/nfe/qrcode/gerar_url_qrcode.h>

#include <unistd.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    using velk::internal::nfe::serialization::NotaFiscal;
    static std::string const arquivo = "/tmp/fuzz-gerar-url-qrcode-" + std::to_string(getpid()) + ".xml";
    static char const csc[] = "0B4E7A91C2D35F68E1A7B9C04D2F6E83A51C";

    // The C functions read up to the first zero, as a C caller's text ends.
    std::string const texto(reinterpret_cast<char const*>(data), strnlen(reinterpret_cast<char const*>(data), size));
    NotaFiscal nota;
    velk::core::result::stack stack;
    bool const lido = velk::erp::tarn::nfe::protobuf::ler_nota_json(texto, nota, stack);

    for (int chamada = 0; chamada < 3; ++chamada) {
        std::remove(arquivo.c_str());
        char url[1024];
        std::uint32_t tamanho = sizeof url;
        // v1 in layouts 3.10 and 4.00, then v2.
        std::int32_t const resultado =
            chamada < 2
                ? velkerp_tarn_nfe_gerar_url_qrcode_v1(texto.c_str(), "000001", csc, url, &tamanho, arquivo.c_str(),
                                                       chamada + 1)
                : velkerp_tarn_nfe_gerar_url_qrcode_v2(texto.c_str(), 1, csc, url, &tamanho, arquivo.c_str(), 2);
        VELK_FUZZ_REQUIRE(resultado >= VELKERP_TARN_NFE_SUCESSO && resultado <= VELKERP_TARN_NFE_ARQUIVO_NAO_ESCRITO);
        VELK_FUZZ_REQUIRE((resultado == VELKERP_TARN_NFE_JSON_INVALIDO) == !lido);
        if (resultado == VELKERP_TARN_NFE_SUCESSO) {
            VELK_FUZZ_REQUIRE(std::strlen(url) == tamanho);
        }
        std::ifstream escrito(arquivo, std::ios::binary);
        if (resultado != VELKERP_TARN_NFE_SUCESSO || !escrito) {
            continue;
        }
        std::string const infnfe{std::istreambuf_iterator<char>(escrito), std::istreambuf_iterator<char>()};
        VELK_FUZZ_REQUIRE(infnfe.rfind("<infNFe ", 0) == 0 && infnfe.ends_with("</infNFe>"));
    }
    std::remove(arquivo.c_str());
    return 0;
}
