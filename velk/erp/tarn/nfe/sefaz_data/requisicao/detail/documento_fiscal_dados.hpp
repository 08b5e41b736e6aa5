#pragma once

// Inside the library only: the hidden data of documento_fiscal, for the
// source files that add operations to the class.

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

struct documento_fiscal::dados {
    // What from_xml read out of the tree, in the order it reads them.
    struct campos_lidos {
        chave_acesso chave;
        versao versao_layout = versao::versao_3_10;
        ambiente tipo_ambiente = ambiente::homologacao;
        modelo modelo_documento = modelo::nfe;
        estado uf = estado::ac;
        core::optional<std::string> qrcode_value;
        core::optional<std::string> url_chave;
        core::datetime data_hora_emissao;
        core::optional<std::string> email_destinatario;
        std::uint32_t serie = 0;
        std::uint32_t codigo_numerico = 0;
        std::uint32_t numero_nota_fiscal = 0;
        std::string valor_total;
        std::string valor_icms;
        core::optional<std::string> identificador_destinatario;
    };

    campos_lidos campos;
    // The NFe element: the document itself.
    xml::element xml;
    // The infNFe child of `xml`, or null before a successful read. The
    // children of an element live in a linked list, so the pointer stays
    // good while siblings are added or erased and when the object moves; a
    // copy points at the same position in its own tree.
    xml::element* inf_nfe = nullptr;

    dados() = default;
    dados(dados const& other);
    dados& operator=(dados const& other) = delete;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
