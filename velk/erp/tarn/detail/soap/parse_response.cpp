#include <velk/erp/tarn/detail/soap/parse_response.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/detail/soap/walker_soap_fault.hpp>
#include <velk/erp/tarn/nfe/servico_result_category.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/node.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::detail::soap {

namespace {

using servico = nfe::servico_result_category;

void report_soap_fault(xml::element const& fault, core::result::stack& result)
{
    walker_soap_fault walker;
    core::result::stack ignored;
    walker.traverse_element(fault, ignored);
    core::result::fresh<servico::falha_soap>(result, walker.get_fault());
}

}  // namespace

message parse_response(core::byte_array const& bytes, core::result::stack& result)
{
    auto const refuse = [&](std::string const& description) {
        core::result::fresh<servico::soap_invalido>(result, description, bytes);
        return message();
    };

    xml::document document;
    if (!document.load(bytes, result)) {
        core::result::chain<servico::soap_invalido>(result, "A receita não respondeu um xml válido", bytes);
        return message();
    }
    // The trees of the answer are moved out of the document, not copied: an
    // answer of megabytes is held once.
    xml::element* envelope = document.get_root_element();
    if (envelope == nullptr) {
        return refuse("root-element não encontrado");
    }
    if (envelope->get_name() != "Envelope") {
        return refuse("root-element não é um 'Envelope'");
    }

    xml::element* body = nullptr;
    for (xml::node& child : envelope->get_node_range()) {
        xml::element* part = child.as_element();
        if (part != nullptr && part->get_name() == "Body") {
            if (body != nullptr) {
                return refuse("Foi encontrado mais de um body na mesma resposta da receita");
            }
            body = part;
        } else if (part == nullptr || part->get_name() != "Header") {
            return refuse("Foi encontrado um node inválido na resposta da receita");
        }
    }
    if (body == nullptr) {
        return refuse("Nenhuma element 'Body' encontrado");
    }

    message answer;
    for (xml::node& child : body->get_node_range()) {
        xml::element* part = child.as_element();
        if (part == nullptr) {
            return refuse("O child node do 'Body' encontrado não é um element válido");
        }
        if (part->get_name() == "Fault") {
            report_soap_fault(*part, result);
            return message();
        }
        body_element result_tag(part->get_name(), "");
        for (xml::node& inner : part->get_node_range()) {
            xml::element* tree = inner.as_element();
            if (tree == nullptr) {
                return refuse("O child node do '" + part->get_name() + "' encontrado não é um element válido");
            }
            result_tag.children.push_back(std::move(*tree));
        }
        answer.body.push_back(std::move(result_tag));
    }
    return answer;
}

}  // namespace velk::erp::inline v4::tarn::detail::soap
