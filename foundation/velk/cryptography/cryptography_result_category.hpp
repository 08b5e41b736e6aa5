#pragma once

#include <velk/core/result/category.hpp>
#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>

#include <string>

namespace velk::cryptography {
inline namespace v3 {

// Failures of the certificate, key, hash and XML signature operations, named
// "velk-cryptography". Passwords and key material never appear in arguments;
// "description" holds the reason given by OpenSSL or libxml2.
//
// | Code | Message                                                            | Arguments                   |
// | 1    | "O conteúdo não é um arquivo PKCS#12 legível"                       | "description"               |
// | 2    | "Senha do arquivo PKCS#12 incorreta"                                | none                        |
// | 3    | "O arquivo PKCS#12 não contém certificado e chave privada"          | "missing"                   |
// | 4    | "Certificado X.509 inválido"                                        | "description"               |
// | 5    | "Chave privada inválida"                                            | "description"               |
// | 6    | "Tipo de chave privada não suportado"                               | "type"                      |
// | 7    | "O certificado não corresponde à chave privada"                     | "subject"                   |
// | 8    | "Codificação não suportada"                                         | "encoding"                  |
// | 9    | "Falha no cálculo do hash"                                          | "algorithm", "description"  |
// | 10   | "Falha na assinatura digital"                                       | "description"               |
// | 11   | "Algoritmo não suportado"                                           | "algorithm"                 |
// | 12   | "O modelo da assinatura XML está incompleto"                        | "element"                   |
// | 13   | "A referência da assinatura não foi encontrada no documento"        | "uri"                       |
// | 14   | "A referência da assinatura aponta para mais de um elemento"        | "uri"                       |
// | 15   | "Nenhum elemento Signature foi encontrado sob o elemento pai"       | "element"                   |
// | 16   | "Falha ao canonicalizar o XML a assinar"                            | "description"               |
class cryptography_result_category final : public core::result::category {
public:
    static cryptography_result_category const& instance();

    char const* get_name() const override;
    char const* get_message(int code) const override;

    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 1>,
                std::string const& description) const;
    void create(core::result::stack::item&, core::result::code<cryptography_result_category, 2>) const {}
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 3>,
                std::string const& missing) const;
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 4>,
                std::string const& description) const;
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 5>,
                std::string const& description) const;
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 6>,
                std::string const& type) const;
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 7>,
                std::string const& subject) const;
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 8>,
                std::string const& encoding) const;
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 9>,
                std::string const& algorithm, std::string const& description) const;
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 10>,
                std::string const& description) const;
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 11>,
                std::string const& algorithm) const;
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 12>,
                std::string const& element) const;
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 13>,
                std::string const& uri) const;
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 14>,
                std::string const& uri) const;
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 15>,
                std::string const& element) const;
    void create(core::result::stack::item& item, core::result::code<cryptography_result_category, 16>,
                std::string const& description) const;

private:
    cryptography_result_category() = default;
};

}  // namespace v3
}  // namespace velk::cryptography
