#pragma once

#include <velk/core/datetime.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/autorizacao_acesso_xml.hpp>
#include <velk/erp/fiscal/cobranca.hpp>
#include <velk/erp/fiscal/consumidor_final.hpp>
#include <velk/erp/fiscal/cupom_referenciado.hpp>
#include <velk/erp/fiscal/destinatario.hpp>
#include <velk/erp/fiscal/destino_operacao.hpp>
#include <velk/erp/fiscal/emitente.hpp>
#include <velk/erp/fiscal/finalidade_emissao.hpp>
#include <velk/erp/fiscal/indicador_ambiente.hpp>
#include <velk/erp/fiscal/indicador_intermediador.hpp>
#include <velk/erp/fiscal/indicador_presenca.hpp>
#include <velk/erp/fiscal/indice_pagamento.hpp>
#include <velk/erp/fiscal/informacoes_adicionais.hpp>
#include <velk/erp/fiscal/informacoes_comercio_exterior.hpp>
#include <velk/erp/fiscal/informacoes_intermediador.hpp>
#include <velk/erp/fiscal/informacoes_pagamento.hpp>
#include <velk/erp/fiscal/informacoes_responsavel_tecnico.hpp>
#include <velk/erp/fiscal/informacoes_transporte.hpp>
#include <velk/erp/fiscal/local_entrega.hpp>
#include <velk/erp/fiscal/nf_referenciada.hpp>
#include <velk/erp/fiscal/nfe_referenciada.hpp>
#include <velk/erp/fiscal/nfp_referenciada.hpp>
#include <velk/erp/fiscal/produto.hpp>
#include <velk/erp/fiscal/tipo_emissao.hpp>
#include <velk/erp/fiscal/tipo_operacao.hpp>
#include <velk/erp/fiscal/total_nfe.hpp>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// An NF-e (model 55) or NFC-e (model 65) as the application issues it: every value worked out, the access key, totals
// and taxes included. Document generation only reads it, and checks what it converts.
//
// The classes of the model are plain values, built with fluent setters:
//
//     nota.set_serie("1").set_numero(1042).set_emitente(emitente);
//
// Enumerations number their values from 0 in the order of the layout's codes (tipo_operacao::saida is 1 and writes
// tpNF 1, meio_pagamento::outros is 12 and writes tPag 99). A value outside the enumerators can be held, static_cast
// from its number; document generation then refuses the note with that number as the detail.
class VELK_EXPORT nota_fiscal {
public:
    // the access key; Id is "NFe" and the key, cDV its last digit
    std::string get_chave_44_digitos() const { return chave_44_digitos_; }
    nota_fiscal& set_chave_44_digitos(std::string value)
    {
        chave_44_digitos_ = std::move(value);
        return *this;
    }

    // cNF
    std::uint32_t get_codigo_nf() const { return codigo_nf_; }
    nota_fiscal& set_codigo_nf(std::uint32_t value)
    {
        codigo_nf_ = value;
        return *this;
    }

    // natOp
    std::string get_natureza_operacao() const { return natureza_operacao_; }
    nota_fiscal& set_natureza_operacao(std::string value)
    {
        natureza_operacao_ = std::move(value);
        return *this;
    }

    // indPag, layout 3.10 only
    indice_pagamento get_indice_pagamento() const { return indice_pagamento_; }
    nota_fiscal& set_indice_pagamento(indice_pagamento value)
    {
        indice_pagamento_ = value;
        return *this;
    }

    // mod: "55" or "65"
    std::string get_modelo_emissao() const { return modelo_emissao_; }
    nota_fiscal& set_modelo_emissao(std::string value)
    {
        modelo_emissao_ = std::move(value);
        return *this;
    }

    // serie, digits only
    std::string get_serie() const { return serie_; }
    nota_fiscal& set_serie(std::string value)
    {
        serie_ = std::move(value);
        return *this;
    }

    // nNF
    std::uint32_t get_numero() const { return numero_; }
    nota_fiscal& set_numero(std::uint32_t value)
    {
        numero_ = value;
        return *this;
    }

    // dhEmi
    core::datetime get_data_emissao() const { return data_emissao_; }
    nota_fiscal& set_data_emissao(core::datetime value)
    {
        data_emissao_ = std::move(value);
        return *this;
    }

    // dhSaiEnt
    core::optional<core::datetime> get_data_saida_entrada() const { return data_saida_entrada_; }
    nota_fiscal& set_data_saida_entrada(core::optional<core::datetime> value)
    {
        data_saida_entrada_ = std::move(value);
        return *this;
    }

    // tpNF
    tipo_operacao get_tipo_operacao() const { return tipo_operacao_; }
    nota_fiscal& set_tipo_operacao(tipo_operacao value)
    {
        tipo_operacao_ = value;
        return *this;
    }

    // idDest
    destino_operacao get_indicador_operacao() const { return indicador_operacao_; }
    nota_fiscal& set_indicador_operacao(destino_operacao value)
    {
        indicador_operacao_ = value;
        return *this;
    }

    // cMunFG
    std::uint32_t get_ibge_municipio_emissao() const { return ibge_municipio_emissao_; }
    nota_fiscal& set_ibge_municipio_emissao(std::uint32_t value)
    {
        ibge_municipio_emissao_ = value;
        return *this;
    }

    // tpEmis
    tipo_emissao get_tipo_emissao() const { return tipo_emissao_; }
    nota_fiscal& set_tipo_emissao(tipo_emissao value)
    {
        tipo_emissao_ = value;
        return *this;
    }

    // tpAmb
    indicador_ambiente get_indicador_ambiente() const { return indicador_ambiente_; }
    nota_fiscal& set_indicador_ambiente(indicador_ambiente value)
    {
        indicador_ambiente_ = value;
        return *this;
    }

    // finNFe
    finalidade_emissao get_indicador_finalidade_emissao() const { return indicador_finalidade_emissao_; }
    nota_fiscal& set_indicador_finalidade_emissao(finalidade_emissao value)
    {
        indicador_finalidade_emissao_ = value;
        return *this;
    }

    // indFinal
    consumidor_final get_operacao_consumidor_final() const { return operacao_consumidor_final_; }
    nota_fiscal& set_operacao_consumidor_final(consumidor_final value)
    {
        operacao_consumidor_final_ = value;
        return *this;
    }

    // indPres
    indicador_presenca get_indicador_presenca() const { return indicador_presenca_; }
    nota_fiscal& set_indicador_presenca(indicador_presenca value)
    {
        indicador_presenca_ = value;
        return *this;
    }

    // indIntermed
    core::optional<indicador_intermediador> get_indicador_intermediador() const { return indicador_intermediador_; }
    nota_fiscal& set_indicador_intermediador(core::optional<indicador_intermediador> value)
    {
        indicador_intermediador_ = std::move(value);
        return *this;
    }

    // dhCont
    core::optional<core::datetime> get_data_contingencia() const { return data_contingencia_; }
    nota_fiscal& set_data_contingencia(core::optional<core::datetime> value)
    {
        data_contingencia_ = std::move(value);
        return *this;
    }

    // xJust
    core::optional<std::string> get_justificativa_entrada_contingencia() const
    {
        return justificativa_entrada_contingencia_;
    }
    nota_fiscal& set_justificativa_entrada_contingencia(core::optional<std::string> value)
    {
        justificativa_entrada_contingencia_ = std::move(value);
        return *this;
    }

    // NFref/refNFe
    std::vector<nfe_referenciada> get_nfe_referenciadas() const { return nfe_referenciadas_; }
    nota_fiscal& set_nfe_referenciadas(std::vector<nfe_referenciada> value)
    {
        nfe_referenciadas_ = std::move(value);
        return *this;
    }

    // NFref/refNF
    std::vector<nf_referenciada> get_nf_referenciadas() const { return nf_referenciadas_; }
    nota_fiscal& set_nf_referenciadas(std::vector<nf_referenciada> value)
    {
        nf_referenciadas_ = std::move(value);
        return *this;
    }

    // NFref/refNFP
    std::vector<nfp_referenciada> get_nfp_referenciadas() const { return nfp_referenciadas_; }
    nota_fiscal& set_nfp_referenciadas(std::vector<nfp_referenciada> value)
    {
        nfp_referenciadas_ = std::move(value);
        return *this;
    }

    // NFref/refECF
    std::vector<cupom_referenciado> get_cupons_referenciados() const { return cupons_referenciados_; }
    nota_fiscal& set_cupons_referenciados(std::vector<cupom_referenciado> value)
    {
        cupons_referenciados_ = std::move(value);
        return *this;
    }

    // emit
    emitente get_emitente() const { return emitente_; }
    nota_fiscal& set_emitente(emitente value)
    {
        emitente_ = std::move(value);
        return *this;
    }

    // dest
    core::optional<destinatario> get_destinatario() const { return destinatario_; }
    nota_fiscal& set_destinatario(core::optional<destinatario> value)
    {
        destinatario_ = std::move(value);
        return *this;
    }

    // entrega
    core::optional<local_entrega> get_local_entrega() const { return local_entrega_; }
    nota_fiscal& set_local_entrega(core::optional<local_entrega> value)
    {
        local_entrega_ = std::move(value);
        return *this;
    }

    // autXML
    std::vector<autorizacao_acesso_xml> get_autorizacoes_acesso_xml() const { return autorizacoes_acesso_xml_; }
    nota_fiscal& set_autorizacoes_acesso_xml(std::vector<autorizacao_acesso_xml> value)
    {
        autorizacoes_acesso_xml_ = std::move(value);
        return *this;
    }

    // det, one per product
    std::vector<produto> get_produtos() const { return produtos_; }
    nota_fiscal& set_produtos(std::vector<produto> value)
    {
        produtos_ = std::move(value);
        return *this;
    }

    // total
    total_nfe get_total_nfe() const { return total_nfe_; }
    nota_fiscal& set_total_nfe(total_nfe value)
    {
        total_nfe_ = std::move(value);
        return *this;
    }

    // transp
    informacoes_transporte get_informacoes_transporte() const { return informacoes_transporte_; }
    nota_fiscal& set_informacoes_transporte(informacoes_transporte value)
    {
        informacoes_transporte_ = std::move(value);
        return *this;
    }

    // cobr
    core::optional<cobranca> get_cobranca() const { return cobranca_; }
    nota_fiscal& set_cobranca(core::optional<cobranca> value)
    {
        cobranca_ = std::move(value);
        return *this;
    }

    // pag
    informacoes_pagamento get_informacoes_pagamento() const { return informacoes_pagamento_; }
    nota_fiscal& set_informacoes_pagamento(informacoes_pagamento value)
    {
        informacoes_pagamento_ = std::move(value);
        return *this;
    }

    // infIntermed
    core::optional<informacoes_intermediador> get_informacoes_intermediador() const
    {
        return informacoes_intermediador_;
    }
    nota_fiscal& set_informacoes_intermediador(core::optional<informacoes_intermediador> value)
    {
        informacoes_intermediador_ = std::move(value);
        return *this;
    }

    // infAdic
    core::optional<informacoes_adicionais> get_informacoes_adicionais() const { return informacoes_adicionais_; }
    nota_fiscal& set_informacoes_adicionais(core::optional<informacoes_adicionais> value)
    {
        informacoes_adicionais_ = std::move(value);
        return *this;
    }

    // exporta
    core::optional<informacoes_comercio_exterior> get_comercio_exterior() const { return comercio_exterior_; }
    nota_fiscal& set_comercio_exterior(core::optional<informacoes_comercio_exterior> value)
    {
        comercio_exterior_ = std::move(value);
        return *this;
    }

    // infRespTec
    core::optional<informacoes_responsavel_tecnico> get_informacoes_responsavel_tecnico() const
    {
        return informacoes_responsavel_tecnico_;
    }
    nota_fiscal& set_informacoes_responsavel_tecnico(core::optional<informacoes_responsavel_tecnico> value)
    {
        informacoes_responsavel_tecnico_ = std::move(value);
        return *this;
    }

private:
    std::string chave_44_digitos_;
    std::uint32_t codigo_nf_ = 0;
    std::string natureza_operacao_;
    indice_pagamento indice_pagamento_{};
    std::string modelo_emissao_;
    std::string serie_;
    std::uint32_t numero_ = 0;
    core::datetime data_emissao_;
    core::optional<core::datetime> data_saida_entrada_;
    tipo_operacao tipo_operacao_{};
    destino_operacao indicador_operacao_{};
    std::uint32_t ibge_municipio_emissao_ = 0;
    tipo_emissao tipo_emissao_{};
    indicador_ambiente indicador_ambiente_{};
    finalidade_emissao indicador_finalidade_emissao_{};
    consumidor_final operacao_consumidor_final_{};
    indicador_presenca indicador_presenca_{};
    core::optional<indicador_intermediador> indicador_intermediador_;
    core::optional<core::datetime> data_contingencia_;
    core::optional<std::string> justificativa_entrada_contingencia_;
    std::vector<nfe_referenciada> nfe_referenciadas_;
    std::vector<nf_referenciada> nf_referenciadas_;
    std::vector<nfp_referenciada> nfp_referenciadas_;
    std::vector<cupom_referenciado> cupons_referenciados_;
    emitente emitente_;
    core::optional<destinatario> destinatario_;
    core::optional<local_entrega> local_entrega_;
    std::vector<autorizacao_acesso_xml> autorizacoes_acesso_xml_;
    std::vector<produto> produtos_;
    total_nfe total_nfe_;
    informacoes_transporte informacoes_transporte_;
    core::optional<cobranca> cobranca_;
    informacoes_pagamento informacoes_pagamento_;
    core::optional<informacoes_intermediador> informacoes_intermediador_;
    core::optional<informacoes_adicionais> informacoes_adicionais_;
    core::optional<informacoes_comercio_exterior> comercio_exterior_;
    core::optional<informacoes_responsavel_tecnico> informacoes_responsavel_tecnico_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp
