#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/detail_kinds.hpp>
#include <velk/core/result/row.hpp>
#include <velk/core/result/table_category.hpp>

namespace velk::cryptography {
inline namespace v3 {

// Failures of the certificate, key, hash and XML signature operations
// ("velk-cryptography"). Passwords and key material never appear in
// arguments; "description" holds the reason given by OpenSSL or libxml2.
class VELK_EXPORT cryptography_result_category final : public core::result::table_category {
public:
    template <int N, class... Kinds>
    using row = core::result::row<cryptography_result_category, N, Kinds...>;
    using text = core::result::text;

    static cryptography_result_category const& instance();

    // Number, name, words, and the names of the details.
    static constexpr row<1, text> unreadable_pkcs12{"O conteúdo não é um arquivo PKCS#12 legível", "description"};
    static constexpr row<2> wrong_password{"Senha do arquivo PKCS#12 incorreta"};
    static constexpr row<3, text> incomplete_pkcs12{"O arquivo PKCS#12 não contém certificado e chave privada",
                                                    "missing"};
    static constexpr row<4, text> invalid_certificate{"Certificado X.509 inválido", "description"};
    static constexpr row<5, text> invalid_private_key{"Chave privada inválida", "description"};
    static constexpr row<6, text> unsupported_key_type{"Tipo de chave privada não suportado", "type"};
    static constexpr row<7, text> key_mismatch{"O certificado não corresponde à chave privada", "subject"};
    static constexpr row<8, text> unsupported_encoding{"Codificação não suportada", "encoding"};
    static constexpr row<9, text, text> hash_failed{"Falha no cálculo do hash", "algorithm", "description"};
    static constexpr row<10, text> signing_failed{"Falha na assinatura digital", "description"};
    static constexpr row<11, text> unsupported_algorithm{"Algoritmo não suportado", "algorithm"};
    static constexpr row<12, text> incomplete_template{"O modelo da assinatura XML está incompleto", "element"};
    static constexpr row<13, text> reference_not_found{"A referência da assinatura não foi encontrada no documento",
                                                       "uri"};
    static constexpr row<14, text> ambiguous_reference{"A referência da assinatura aponta para mais de um elemento",
                                                       "uri"};
    static constexpr row<15, text> no_signature{"Nenhum elemento Signature foi encontrado sob o elemento pai",
                                                "element"};
    static constexpr row<16, text> canonicalization_failed{"Falha ao canonicalizar o XML a assinar", "description"};

private:
    cryptography_result_category();
};

}  // namespace v3
}  // namespace velk::cryptography
