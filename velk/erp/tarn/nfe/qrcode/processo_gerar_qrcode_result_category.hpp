#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/detail_kinds.hpp>
#include <velk/core/result/row.hpp>
#include <velk/core/result/table_category.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe {

// Failures of the consumer QR code of an NFC-e and of the choice of its
// consultation page ("tarn-nfe-processo-gerar-qrcode").
class VELK_EXPORT processo_gerar_qrcode_result_category final : public core::result::table_category {
public:
    template <int N, class... Kinds>
    using row = core::result::row<processo_gerar_qrcode_result_category, N, Kinds...>;
    using texto = core::result::text;

    // A text and its length: two names.
    struct texto_e_tamanho : core::result::detail_kind<std::string, 2> {
        static void store(core::result::stack::item& item, char const* const* name, std::string const& texto);
    };
    // A text and a fixed remark: the text's name, then the remark's name and words.
    struct texto_e_observacao : core::result::detail_kind<std::string, 3> {
        static void store(core::result::stack::item& item, char const* const* name, std::string const& texto);
    };

    static processo_gerar_qrcode_result_category const& instance();

    // Number, name, words, and the names of the details.
    //
    // Code 1 is for callers: the document is not fit for a QR code; never
    // raised here. Code 2's "value" is the CSC refused, which is only ever the
    // empty one. Code 6 carries the hexadecimal hash and its length. Code 9
    // (a PR document of layout 2.00, for which the state publishes no page)
    // has no words: it can be raised and read by number, but asking for its
    // message ends the process, as for a number that is no code.
    static constexpr row<1> documento_invalido{"O documento informado para gerar o QrCode é inválido"};
    static constexpr row<2, texto> csc_invalido{"O CSC não é valido ou não foi informado", "value"};
    static constexpr row<3, texto> id_token_invalido{"O Id Token não é valido ou não foi informado", "value"};
    static constexpr row<4, core::result::number<int>> versao_nao_suportada{"A versao requisitada não é suportada",
                                                                            "value"};
    static constexpr row<5, texto> url_indisponivel{"A url não está disponivel para a UF solicitada", "codigo_uf"};
    static constexpr row<6, texto_e_tamanho> hash_invalido{"A hash gerada para o QrCode está inválida", "hash-value",
                                                           "hash-size"};
    static constexpr row<7, texto_e_observacao> digest_invalido{"O digest gerado para o QrCode está inválido",
                                                                "digest-value", "description",
                                                                "O tamanho do DigestValue deve ser igual a 56"};
    static constexpr row<8, texto, texto> valor_url_invalido{"Valor utilizado para obter a URL está inválido",
                                                             "url-version", "url-field"};
    static constexpr row<9, texto> url_indisponivel_versao{nullptr, "versao-nfe"};

private:
    processo_gerar_qrcode_result_category();
};

}  // namespace velk::erp::inline v4::tarn::nfe
