#include <velk/erp/tarn/nfe/protobuf/nota_json.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/protobuf/detail/leitor_json.hpp>
#include <velk/erp/tarn/nfe/protobuf/nota_json_result_category.hpp>

#include <google/protobuf/util/json_util.h>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::protobuf {

bool ler_nota_json(std::string_view texto, ::velk::internal::nfe::serialization::NotaFiscal& nota,
                   core::result::stack& stack)
{
    nota.Clear();
    if (texto.size() > tamanho_maximo_nota_json) {
        core::result::chain<nota_json_result_category::json_grande_demais>(
            stack, static_cast<unsigned long long>(texto.size()));
        return false;
    }
    // The index of the note's field names is made once, on first use, and
    // only read afterwards: no lock on the way of a note.
    static detail::leitor_json const leitor(*::velk::internal::nfe::serialization::NotaFiscal::descriptor());
    std::string motivo;
    if (!leitor.ler(texto, nota, motivo)) {
        nota.Clear();
        core::result::chain<nota_json_result_category::json_invalido>(stack, std::move(motivo));
        return false;
    }
    return true;
}

std::string escrever_nota_json(::velk::internal::nfe::serialization::NotaFiscal const& nota,
                               core::result::stack& stack)
{
    google::protobuf::util::JsonPrintOptions opcoes;
    opcoes.add_whitespace = true;
    opcoes.preserve_proto_field_names = true;
    std::string texto;
    auto const status = google::protobuf::util::MessageToJsonString(nota, &texto, opcoes);
    if (!status.ok()) {
        core::result::chain<nota_json_result_category::json_nao_escrito>(stack, std::string(status.message()));
        return std::string();
    }
    return texto;
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf
