#include "note_builder.hpp"

#include "command_error.hpp"
#include "files.hpp"

#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>
#include <velk/erp/tarn/nfe/protobuf/nota_json.hpp>
#include <velk/xml/document.hpp>

namespace velk::tools::tarn {

namespace requisicao = erp::tarn::nfe::sefaz_data::requisicao;

requisicao::documento_fiscal note_builder::build(std::filesystem::path const& json_file, erp::tarn::nfe::versao layout)
{
    std::string const text = read_file(json_file);
    core::result::stack stack;
    ::velk::internal::nfe::serialization::NotaFiscal nota;
    erp::tarn::nfe::protobuf::ler_nota_json(text, nota, stack);
    throw_if_failed(stack, "leitura da nota");
    xml::document generated = layout == erp::tarn::nfe::versao::versao_3_10
                                  ? erp::tarn::nfe::protobuf::generate_document_3_10(nota, stack)
                                  : erp::tarn::nfe::protobuf::generate_document_4_00(nota, stack);
    throw_if_failed(stack, "geração do documento");
    requisicao::documento_fiscal documento = requisicao::documento_fiscal::from_xml(std::move(generated), stack);
    throw_if_failed(stack, "leitura do documento gerado");
    return documento;
}

}  // namespace velk::tools::tarn
