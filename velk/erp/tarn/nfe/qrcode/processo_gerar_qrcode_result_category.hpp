#pragma once

#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/result/table_category.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe {

// Failures of the consumer QR code of an NFC-e and of the choice of its
// consultation page ("tarn-nfe-processo-gerar-qrcode").
//
// Code 9 (a PR document of layout 2.00, for which the state publishes no
// page) has no words: it can be created and read by number, but asking for
// its message ends the process, as for a number that is no code.
class processo_gerar_qrcode_result_category final : public core::result::table_category {
public:
    template <int N>
    using code = core::result::code<processo_gerar_qrcode_result_category, N>;
    using item = core::result::stack::item;

    static processo_gerar_qrcode_result_category const& instance();

    // The document is not fit for a QR code: for callers, never raised here.
    void create(item&, code<1>) const {}
    // "value": the CSC refused, which is only ever the empty one.
    void create(item&, code<2>, std::string const& csc) const;
    // "value": the token of the CSC whose length the format refuses.
    void create(item&, code<3>, std::string const& id_token) const;
    // "value": the number of a QR code version that does not exist.
    void create(item&, code<4>, int versao_qrcode) const;
    // "codigo_uf": the state without a consultation page, as its text.
    void create(item&, code<5>, std::string const& codigo_uf) const;
    // "hash-value" and "hash-size": the hexadecimal hash and its length.
    void create(item&, code<6>, std::string const& hash) const;
    // "digest-value": the hexadecimal digest; "description": why it is refused.
    void create(item&, code<7>, std::string const& digest) const;
    // "url-version" ("1.00", "2.00") and "url-field": the value without text.
    void create(item&, code<8>, std::string const& url_version, std::string const& url_field) const;
    // "versao-nfe": the layout version that has no page.
    void create(item&, code<9>, std::string const& versao_nfe) const;

private:
    processo_gerar_qrcode_result_category();
};

}  // namespace velk::erp::inline v4::tarn::nfe
