#pragma once

#include <velk/core/result/category.hpp>
#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>

#include <string>

namespace velk::xml {
inline namespace v3 {

// Failures of the XML tree, named "velk-xml".
//
// | Code | Message                                                   | Arguments                      |
// | 1    | "O documento XML está malformado"                         | "description", "line"          |
// | 2    | "O documento XML declara um DTD, o que não é aceito"      | none                           |
// | 3    | "Nome inválido para elemento ou atributo"                 | "name"                         |
// | 4    | "Atributo já existente no elemento"                       | "name"                         |
// | 5    | "Prefixo de namespace já declarado no elemento"           | "prefix"                       |
// | 6    | "O documento já possui um elemento raiz"                  | none                           |
// | 7    | "O documento não possui elemento raiz"                    | none                           |
// | 8    | "Falha na canonicalização do XML"                         | "description"                  |
class xml_result_category final : public core::result::category {
public:
    static xml_result_category const& instance();

    char const* get_name() const override;
    char const* get_message(int code) const override;

    void create(core::result::stack::item& item, core::result::code<xml_result_category, 1>,
                std::string const& description, std::string const& line) const;
    void create(core::result::stack::item&, core::result::code<xml_result_category, 2>) const {}
    void create(core::result::stack::item& item, core::result::code<xml_result_category, 3>,
                std::string const& name) const;
    void create(core::result::stack::item& item, core::result::code<xml_result_category, 4>,
                std::string const& name) const;
    void create(core::result::stack::item& item, core::result::code<xml_result_category, 5>,
                std::string const& prefix) const;
    void create(core::result::stack::item&, core::result::code<xml_result_category, 6>) const {}
    void create(core::result::stack::item&, core::result::code<xml_result_category, 7>) const {}
    void create(core::result::stack::item& item, core::result::code<xml_result_category, 8>,
                std::string const& description) const;

private:
    xml_result_category() = default;
};

}  // namespace v3
}  // namespace velk::xml
