#pragma once

#include <velk/core/datetime.hpp>
#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/variant.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

// The payload of the prior issue event (EPEC, 110140): the summary of a note
// issued in contingency, registered with the national environment before the
// note itself can be authorized. Its detEvento is built once by from_data and
// kept.
class VELK_EXPORT epec_nfe {
public:
    // The recipient of the note and the note's totals: the dest of the event.
    class destinatario {
    public:
        struct cnpj {
            std::string valor;
            bool operator==(cnpj const&) const = default;
        };
        struct cpf {
            std::string valor;
            bool operator==(cpf const&) const = default;
        };
        struct id_estrangeiro {
            std::string valor;
            bool operator==(id_estrangeiro const&) const = default;
        };
        using identificacao = core::variant<cnpj, cpf, id_estrangeiro>;

        // vNF, vICMS and vST of the note, which the layout of the event
        // requires in dest.
        struct totais {
            core::decimal valor_nf;
            core::decimal valor_icms;
            core::decimal valor_icms_st;
        };

        destinatario();
        destinatario(destinatario const& other);
        destinatario(destinatario&& other) noexcept;
        destinatario& operator=(destinatario const& other);
        destinatario& operator=(destinatario&& other) noexcept;
        ~destinatario();

        // dest: UF (the two letters; empty for a value that is no state),
        // CNPJ, CPF or idEstrangeiro by the alternative held, IE when not
        // empty, then vNF, vICMS and vST with two decimal places (half away
        // from zero). Documents and IE are written as given. Fails only when
        // the XML library does; a valueless identification is a defect of the
        // caller and ends the process.
        static destinatario from_data(estado const& uf, identificacao const& documento, std::string const& ie,
                                      totais const& valores, core::result::stack& stack);

        // Reads dest: UF (code 1 "dest/UF" when missing), the first of CPF,
        // CNPJ and idEstrangeiro in that order of preference (code 1
        // "dest/(CPF|CNPJ|idEstrangeiro)" when there is none), IE, vNF,
        // vICMS and vST when present.
        static destinatario from_xml(xml::element const& dest, core::result::stack& stack);
        // The same for the root of a document; no root is code 5.
        static destinatario from_xml(xml::document const& documento, core::result::stack& stack);

        // The setters change the fields only: the dest already built stays.
        estado get_estado() const;
        void set_estado(estado uf);
        identificacao get_identificacao() const;
        void set_identificacao(identificacao const& documento);
        std::string get_ie() const;
        void set_ie(std::string const& ie);
        totais get_totais() const;
        xml::element get_xml() const;

    private:
        struct dados;
        tarn::detail::valor_oculto<dados> dados_;
    };

    epec_nfe();
    epec_nfe(epec_nfe const& other);
    epec_nfe(epec_nfe&& other) noexcept;
    epec_nfe& operator=(epec_nfe const& other);
    epec_nfe& operator=(epec_nfe&& other) noexcept;
    ~epec_nfe();

    // descEvento "EPEC", cOrgaoAutor (the IBGE code of the issuer's state),
    // tpAutor 1, verAplic "4.0.0", dhEmi, tpNF, IE (as given, also empty) and
    // the recipient's dest. A value without text is code 9 ("epec_nfe" and
    // "estado", "dh_emissao" or "tipo_nf") on top of the converter's failure,
    // and a default object. tpNF is not checked against its range.
    static epec_nfe from_data(estado const& uf, core::datetime const& dh_emissao, unsigned int tipo_nf,
                              std::string const& ie, destinatario const& dest, core::result::stack& stack);

    // Reads cOrgaoAutor (as the state), dhEmi, tpNF and IE of a detEvento and
    // keeps the element; missing ones are code 1 ("detEvento/" and the tag).
    // dest is not read: the recipient of a read event is a default one.
    static epec_nfe from_xml(xml::element const& det_evento, core::result::stack& stack);
    // The same for the root of a document; no root is code 5.
    static epec_nfe from_xml(xml::document const& documento, core::result::stack& stack);

    estado get_estado() const;
    core::datetime get_dh_emissao() const;
    std::uint32_t get_tipo_nf() const;
    std::string get_ie() const;
    destinatario get_destinatario() const;
    // Changes the field only: the detEvento already built keeps its dest.
    void set_destinatario(destinatario const& dest);
    xml::element get_xml() const;

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao
