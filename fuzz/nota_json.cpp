// A note as JSON, as a point-of-sale program hands it in: our reader must
// give exactly what protobuf's own JSON mapping gives (the same message or a
// refusal by both), and a note that reads must generate both layouts or say
// why not, never crash.

#include "fuzz_input.hpp"

#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>
#include <velk/erp/tarn/nfe/protobuf/nota_json.hpp>

#include <google/protobuf/util/json_util.h>

#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    using namespace velk;
    using erp::tarn::nfe::protobuf::generate_document_3_10;
    using erp::tarn::nfe::protobuf::generate_document_4_00;
    using erp::tarn::nfe::protobuf::ler_nota_json;
    using NotaFiscal = ::velk::internal::nfe::serialization::NotaFiscal;

    std::string_view const texto(reinterpret_cast<char const*>(data), size);
    NotaFiscal nota;
    core::result::stack stack;
    bool const lido = ler_nota_json(texto, nota, stack);
    fuzz::require_told(lido, stack);

    NotaFiscal oraculo;
    bool const aceito = google::protobuf::util::JsonStringToMessage(std::string(texto), &oraculo).ok();
    VELK_FUZZ_REQUIRE(aceito == lido);
    if (!lido) {
        return 0;
    }
    VELK_FUZZ_REQUIRE(oraculo.SerializeAsString() == nota.SerializeAsString());

    for (auto generate : {&generate_document_4_00, &generate_document_3_10}) {
        core::result::stack gerado;
        xml::document const documento = generate(nota, gerado);
        if (!gerado.has_failed()) {
            core::result::stack salvo;
            (void)xml::document::save(documento, salvo);
        }
    }
    return 0;
}
