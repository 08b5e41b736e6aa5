// The messages of the note as protoc compiled them, read back from their
// descriptors: every file with its imports in order, every message with each
// field's number, name, type and label, every enumeration with its values.
// The tables are the published format of the note; a field renamed, renumbered
// or retyped in a .proto file breaks the JSON and the binary form of every
// caller, and shows here.

#include <velk/erp/tarn/nfe/detail/protobuf/NotaFiscal.pb.h>

#include <google/protobuf/descriptor.h>
#include <google/protobuf/descriptor.pb.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

namespace gp = google::protobuf;

std::string const pacote = "velk.internal.nfe.serialization";
std::string const pasta = "velk/erp/tarn/nfe/detail/protobuf/";

struct arquivo {
    char const* nome;
    std::vector<std::string> importa;
};

// Each field as "<number> <name> <type>", the type a scalar, or a message or
// enumeration relative to the package, then "repeated", "deprecated" or
// "oneof <name>" where it applies; fields apart by ", ", in declaration order.
struct mensagem {
    char const* nome;
    char const* campos;
};

struct valor {
    char const* nome;
    int numero;
};

struct enumeracao {
    char const* nome;
    std::vector<valor> valores;
};

// In dependency order, each file after all that it imports.
std::vector<arquivo> const arquivos = {
    {"Date", {}},
    {"Time", {}},
    {"DateTime", {"Date.proto", "Time.proto"}},
    {"EnumTributacao", {}},
    {"Decimal", {}},
    {"GrupoFCP", {"Decimal.proto"}},
    {"GrupoTributacaoICMS00", {"EnumTributacao.proto", "Decimal.proto", "GrupoFCP.proto"}},
    {"GrupoFCPSTRetido", {"Decimal.proto"}},
    {"GrupoTributacaoICMS10", {"EnumTributacao.proto", "Decimal.proto", "GrupoFCP.proto", "GrupoFCPSTRetido.proto"}},
    {"GrupoICMSDesonerado", {"Decimal.proto"}},
    {"GrupoTributacaoICMS20", {"EnumTributacao.proto", "Decimal.proto", "GrupoFCP.proto", "GrupoICMSDesonerado.proto"}},
    {"GrupoTributacaoICMS30", {"EnumTributacao.proto", "Decimal.proto", "GrupoFCPSTRetido.proto", "GrupoICMSDesonerado.proto"}},
    {"GrupoTributacaoICMS40", {"EnumTributacao.proto", "GrupoICMSDesonerado.proto"}},
    {"GrupoTributacaoICMS51", {"EnumTributacao.proto", "Decimal.proto", "GrupoFCP.proto"}},
    {"GrupoICMSSTRetido", {"Decimal.proto"}},
    {"GrupoInformacoesICMSEfetivo", {"Decimal.proto"}},
    {"GrupoFCPSTRetidoAnteriormente", {"Decimal.proto"}},
    {"GrupoTributacaoICMS60", {"EnumTributacao.proto", "GrupoICMSSTRetido.proto", "GrupoInformacoesICMSEfetivo.proto", "GrupoFCPSTRetidoAnteriormente.proto"}},
    {"GrupoTributacaoICMS70", {"EnumTributacao.proto", "Decimal.proto", "GrupoFCP.proto", "GrupoFCPSTRetido.proto", "GrupoICMSDesonerado.proto"}},
    {"ICMS90TributacaoNormal", {"EnumTributacao.proto", "Decimal.proto"}},
    {"ICMS90TributacaoST", {"EnumTributacao.proto", "Decimal.proto"}},
    {"GrupoTributacaoICMS90", {"EnumTributacao.proto", "ICMS90TributacaoNormal.proto", "ICMS90TributacaoST.proto", "GrupoFCP.proto", "GrupoFCPSTRetido.proto", "GrupoICMSDesonerado.proto"}},
    {"GrupoTributacaoICMS101", {"EnumTributacao.proto", "Decimal.proto"}},
    {"GrupoTributacaoICMS102", {"EnumTributacao.proto"}},
    {"GrupoTributacaoICMS201", {"EnumTributacao.proto", "Decimal.proto", "GrupoFCPSTRetido.proto"}},
    {"GrupoTributacaoICMS202", {"EnumTributacao.proto", "Decimal.proto", "GrupoFCPSTRetido.proto"}},
    {"GrupoTributacaoICMS500", {"EnumTributacao.proto", "GrupoICMSSTRetido.proto", "GrupoInformacoesICMSEfetivo.proto", "GrupoFCPSTRetidoAnteriormente.proto"}},
    {"ICMS900TributacaoNormal", {"EnumTributacao.proto", "Decimal.proto"}},
    {"ICMS900TributacaoST", {"EnumTributacao.proto", "Decimal.proto"}},
    {"ICMS900TributacaoSN", {"Decimal.proto"}},
    {"GrupoTributacaoICMS900", {"EnumTributacao.proto", "ICMS900TributacaoNormal.proto", "ICMS900TributacaoST.proto", "ICMS900TributacaoSN.proto", "GrupoFCPSTRetido.proto"}},
    {"GrupoRepasseICMSST", {"Decimal.proto", "EnumTributacao.proto", "GrupoInformacoesICMSEfetivo.proto", "GrupoFCPSTRetidoAnteriormente.proto"}},
    {"GrupoTributacaoPIS00", {"EnumTributacao.proto", "Decimal.proto"}},
    {"GrupoTributacaoPIS01", {"EnumTributacao.proto"}},
    {"GrupoTributacaoPIS02", {"EnumTributacao.proto", "Decimal.proto"}},
    {"GrupoTributacaoCofins00", {"EnumTributacao.proto", "Decimal.proto"}},
    {"GrupoTributacaoCofins01", {"EnumTributacao.proto"}},
    {"GrupoTributacaoCofins02", {"EnumTributacao.proto", "Decimal.proto"}},
    {"InformacoesCideCombustiveis", {"Decimal.proto"}},
    {"EncerranteBombaCombustivel", {"google/protobuf/wrappers.proto", "Decimal.proto"}},
    {"InformacoesCombustivelGlp", {"Decimal.proto"}},
    {"GrupoDetalhamentoCombustivel", {"google/protobuf/wrappers.proto", "Decimal.proto", "InformacoesCideCombustiveis.proto", "EncerranteBombaCombustivel.proto", "InformacoesCombustivelGlp.proto"}},
    {"Endereco", {"google/protobuf/wrappers.proto"}},
    {"Destinatario", {"google/protobuf/wrappers.proto", "Endereco.proto"}},
    {"Emitente", {"google/protobuf/wrappers.proto", "Endereco.proto"}},
    {"TransacaoTEF", {"google/protobuf/wrappers.proto"}},
    {"DetalhesPagamento", {"TransacaoTEF.proto", "Decimal.proto", "google/protobuf/wrappers.proto"}},
    {"TributacaoPISCofins", {"GrupoTributacaoPIS00.proto", "GrupoTributacaoPIS01.proto", "GrupoTributacaoPIS02.proto", "GrupoTributacaoCofins00.proto", "GrupoTributacaoCofins01.proto", "GrupoTributacaoCofins02.proto"}},
    {"IPIDevolvido", {"Decimal.proto"}},
    {"TributosDevolvidos", {"Decimal.proto", "IPIDevolvido.proto"}},
    {"ISSQN", {"Decimal.proto"}},
    {"Produto", {"google/protobuf/wrappers.proto", "GrupoTributacaoICMS00.proto", "GrupoTributacaoICMS10.proto", "GrupoTributacaoICMS20.proto", "GrupoTributacaoICMS30.proto", "GrupoTributacaoICMS40.proto", "GrupoTributacaoICMS51.proto", "GrupoTributacaoICMS60.proto", "GrupoTributacaoICMS70.proto", "GrupoTributacaoICMS90.proto", "GrupoTributacaoICMS101.proto", "GrupoTributacaoICMS102.proto", "GrupoTributacaoICMS201.proto", "GrupoTributacaoICMS202.proto", "GrupoTributacaoICMS500.proto", "GrupoTributacaoICMS900.proto", "GrupoRepasseICMSST.proto", "Decimal.proto", "TributacaoPISCofins.proto", "GrupoDetalhamentoCombustivel.proto", "TributosDevolvidos.proto", "ISSQN.proto"}},
    {"TotaisNFe", {"Decimal.proto"}},
    {"TotalNFeICMS", {"Decimal.proto"}},
    {"TotalNFeISSQN", {"Date.proto", "Decimal.proto"}},
    {"TotalNFeRetencaoTributos", {"Decimal.proto"}},
    {"TotalNFe", {"TotalNFeICMS.proto", "TotalNFeISSQN.proto", "TotalNFeRetencaoTributos.proto"}},
    {"GrupoProcessoReferenciado", {}},
    {"InformacoesAdicionais", {"GrupoProcessoReferenciado.proto", "google/protobuf/wrappers.proto"}},
    {"InformacoesPagamento", {"DetalhesPagamento.proto", "Decimal.proto"}},
    {"Volumes", {}},
    {"GrupoTransportador", {"google/protobuf/wrappers.proto"}},
    {"InformacoesTransporte", {"Volumes.proto", "GrupoTransportador.proto"}},
    {"IdentificacaoLocalRetirada", {"google/protobuf/wrappers.proto"}},
    {"IdentificacaoLocalEntrega", {"google/protobuf/wrappers.proto"}},
    {"InformacoesCodigoSeguranca", {}},
    {"InformacoesResponsavelTecnico", {"InformacoesCodigoSeguranca.proto"}},
    {"InformacoesIntermediador", {}},
    {"NotaFiscal", {"DateTime.proto", "Produto.proto", "TotaisNFe.proto", "TotalNFe.proto", "Destinatario.proto", "Emitente.proto", "InformacoesAdicionais.proto", "InformacoesPagamento.proto", "InformacoesTransporte.proto", "IdentificacaoLocalRetirada.proto", "IdentificacaoLocalEntrega.proto", "InformacoesResponsavelTecnico.proto", "InformacoesIntermediador.proto", "google/protobuf/wrappers.proto"}},
};

// The totals of the note, the deprecated group and the one under TotalNFe, and
// the places of pick-up and delivery, have the same fields.
char const* const totais =
    "1 seguro Decimal, 2 desonerado Decimal, 3 ipi Decimal, 4 imposto_importacao Decimal, "
    "5 nota Decimal, 6 tributos_item Decimal, 7 base_st Decimal, 8 base_normal Decimal, "
    "9 icms_normal Decimal, 10 produtos Decimal, 11 retido Decimal, 12 despesas_acessorias Decimal, "
    "13 frete Decimal, 14 desconto Decimal, 15 impostos_pis Decimal, 16 impostos_cofins Decimal, "
    "17 fecop Decimal, 18 fcp Decimal, 19 icms_destino Decimal, 20 icms_remetente Decimal, "
    "21 fcp_st_retido Decimal, 22 fcp_st_retido_anteriormente Decimal, 23 icms_fcp_destino Decimal, "
    "24 ipi_devolvido Decimal";
char const* const locais =
    "1 cnpj uint64, 2 cpf uint64, 3 nome_expedidor google.protobuf.StringValue, "
    "4 logradouro google.protobuf.StringValue, 5 numero google.protobuf.StringValue, "
    "6 complemento google.protobuf.StringValue, 7 bairro google.protobuf.StringValue, "
    "8 codigo_municipio uint32, 9 nome_municinio google.protobuf.StringValue, "
    "10 sigla_uf google.protobuf.StringValue, 11 cep uint64, 12 codigo_pais uint32, "
    "13 nome_pais google.protobuf.StringValue, 14 telefone uint64, 15 email google.protobuf.StringValue, "
    "16 inscricao_estadual uint64";

std::vector<mensagem> const mensagens = {
    {"Date", "1 day uint32, 2 month uint32, 3 year uint32"},
    {"Time", "1 hour uint32, 2 minute uint32, 3 seconds uint32, 4 miliseconds uint32"},
    {"DateTime", "1 date Date, 2 time Time, 3 offset int32"},
    {"ModalidadeBCICMS", ""},
    {"ModalidadeBCICMSST", ""},
    {"Decimal", "1 numero uint64, 2 casas_decimais uint32"},
    {"GrupoFCP", "1 valor_bc_fcp Decimal, 2 percentual_fcp Decimal, 3 valor_fcp Decimal"},
    {"GrupoTributacaoICMS00",
     "1 origem_mercadoria OrigemMercadoria, 2 cst Cst, 3 modalidade_bc_icms ModalidadeBCICMS.Enum, "
     "4 valor_bc_icms Decimal, 5 aliquota_icms Decimal, 6 valor_icms Decimal, 7 fcp GrupoFCP"},
    {"GrupoFCPSTRetido",
     "1 valor_bc_fcp_st_retido Decimal, 2 percentual_fcp_st_retido Decimal, 3 valor_fcp_st_retido Decimal"},
    {"GrupoTributacaoICMS10",
     "1 origem_mercadoria OrigemMercadoria, 2 cst Cst, 3 modalidade_bc_icms ModalidadeBCICMS.Enum, "
     "4 valor_bc_icms Decimal, 5 aliquota_icms Decimal, 6 valor_icms Decimal, "
     "7 modalidade_bc_icms_st ModalidadeBCICMSST.Enum, 8 percentual_mva Decimal, "
     "9 percentual_reducao_st Decimal, 10 valor_bc_icms_st Decimal, 11 aliquota_icms_st Decimal, "
     "12 valor_icms_st Decimal, 13 fcp GrupoFCP, 14 fcp_st_retido GrupoFCPSTRetido"},
    {"GrupoICMSDesonerado", "1 valor_icms_desonerado Decimal, 6 motivo_desoneracao uint32"},
    {"GrupoTributacaoICMS20",
     "1 origem_mercadoria OrigemMercadoria, 2 cst Cst, 3 modalidade_bc_icms ModalidadeBCICMS.Enum, "
     "4 percentual_reducao Decimal, 5 valor_bc_icms Decimal, 6 aliquota_icms Decimal, "
     "7 valor_icms Decimal, 8 fcp GrupoFCP, 9 grupo_icms_desonerado GrupoICMSDesonerado"},
    {"GrupoTributacaoICMS30",
     "1 origem_mercadoria OrigemMercadoria, 2 cst Cst, 3 modalidade_bc_icms_st ModalidadeBCICMSST.Enum, "
     "4 percentual_mva Decimal, 5 percentual_reducao_st Decimal, 6 valor_bc_icms_st Decimal, "
     "7 aliquota_icms_st Decimal, 8 valor_icms_st Decimal, 9 fcp_st_retido GrupoFCPSTRetido, "
     "10 grupo_icms_desonerado GrupoICMSDesonerado"},
    {"GrupoTributacaoICMS40",
     "1 origem_mercadoria OrigemMercadoria, 2 cst Cst, 3 grupo_icms_desonerado GrupoICMSDesonerado"},
    {"GrupoTributacaoICMS51",
     "1 origem_mercadoria OrigemMercadoria, 2 cst Cst, 3 modalidade_bc_icms ModalidadeBCICMS.Enum, "
     "4 percentual_reducao Decimal, 5 valor_bc_icms Decimal, 6 aliquota_icms Decimal, "
     "7 valor_icms_operacao Decimal, 8 percentual_diferimento Decimal, 9 valor_icms_diferido Decimal, "
     "10 valor_icms Decimal, 11 fcp GrupoFCP"},
    {"GrupoICMSSTRetido",
     "1 valor_bc_icms_retido Decimal, 2 valor_icms_retido Decimal, "
     "3 aliquota_suportada_consumidor_final Decimal, 4 valor_icms_proprio_substituto Decimal"},
    {"GrupoInformacoesICMSEfetivo",
     "1 percentual_reducao_bc Decimal, 2 valor_bc Decimal, 3 aliquota Decimal, 4 valor Decimal"},
    {"GrupoFCPSTRetidoAnteriormente",
     "1 valor_bc_fcp_st_retido_anteriormente Decimal, 2 percentual_fcp_st_retido_anteriormente Decimal, "
     "3 valor_fcp_st_retido_anteriormente Decimal"},
    {"GrupoTributacaoICMS60",
     "1 origem_mercadoria OrigemMercadoria, 2 cst Cst, 3 icms_st_retido GrupoICMSSTRetido, "
     "5 informacoes_icms_efetivo GrupoInformacoesICMSEfetivo, "
     "6 fcp_st_retido_anteriormente GrupoFCPSTRetidoAnteriormente"},
    {"GrupoTributacaoICMS70",
     "1 origem_mercadoria OrigemMercadoria, 2 cst Cst, 3 modalidade_bc_icms ModalidadeBCICMS.Enum, "
     "4 percentual_reducao Decimal, 5 valor_bc_icms Decimal, 6 aliquota_icms Decimal, "
     "7 valor_icms Decimal, 8 modalidade_bc_icms_st ModalidadeBCICMSST.Enum, 9 percentual_mva Decimal, "
     "10 percentual_reducao_st Decimal, 11 valor_bc_icms_st Decimal, 12 aliquota_icms_st Decimal, "
     "13 valor_icms_st Decimal, 14 fcp GrupoFCP, 15 fcp_st_retido GrupoFCPSTRetido, "
     "16 grupo_icms_desonerado GrupoICMSDesonerado"},
    {"ICMS90TributacaoNormal",
     "1 modalidade_bc_icms ModalidadeBCICMS.Enum, 2 percentual_reducao Decimal, 3 valor_bc_icms Decimal, "
     "4 aliquota_icms Decimal, 5 valor_icms Decimal"},
    {"ICMS90TributacaoST",
     "1 modalidade_bc_icms_st ModalidadeBCICMSST.Enum, 2 percentual_mva Decimal, "
     "3 percentual_reducao_st Decimal, 4 valor_bc_icms_st Decimal, 5 aliquota_icms_st Decimal, "
     "6 valor_icms_st Decimal"},
    {"GrupoTributacaoICMS90",
     "1 origem_mercadoria OrigemMercadoria, 2 cst Cst, 3 tributacao_normal ICMS90TributacaoNormal, "
     "4 tributacao_st ICMS90TributacaoST, 5 fcp GrupoFCP, 6 fcp_st_retido GrupoFCPSTRetido, "
     "7 grupo_icms_desonerado GrupoICMSDesonerado"},
    {"GrupoTributacaoICMS101",
     "1 origem_mercadoria OrigemMercadoria, 2 csosn Csosn, 3 percentual_sn Decimal, 4 credito_sn Decimal"},
    {"GrupoTributacaoICMS102", "1 origem_mercadoria OrigemMercadoria, 2 csosn Csosn"},
    {"GrupoTributacaoICMS201",
     "1 origem_mercadoria OrigemMercadoria, 2 Csosn Csosn, "
     "3 modalidade_bc_icms_st ModalidadeBCICMSST.Enum, 4 percentual_mva Decimal, "
     "5 percentual_reducao_st Decimal, 6 valor_bc_icms_st Decimal, 7 aliquota_icms_st Decimal, "
     "8 valor_icms_st Decimal, 9 percentual_sn Decimal, 10 credito_sn Decimal, "
     "11 fcp_st_retido GrupoFCPSTRetido"},
    {"GrupoTributacaoICMS202",
     "1 origem_mercadoria OrigemMercadoria, 2 Csosn Csosn, "
     "3 modalidade_bc_icms_st ModalidadeBCICMSST.Enum, 4 percentual_mva Decimal, "
     "5 percentual_reducao_st Decimal, 6 valor_bc_icms_st Decimal, 7 aliquota_icms_st Decimal, "
     "8 valor_icms_st Decimal, 9 fcp_st_retido GrupoFCPSTRetido"},
    {"GrupoTributacaoICMS500",
     "1 origem_mercadoria OrigemMercadoria, 2 csosn Csosn, 3 icms_st_retido GrupoICMSSTRetido, "
     "4 informacoes_icms_efetivo GrupoInformacoesICMSEfetivo, "
     "5 fcp_st_retido_anteriormente GrupoFCPSTRetidoAnteriormente"},
    {"ICMS900TributacaoNormal",
     "1 modalidade_bc_icms ModalidadeBCICMS.Enum, 2 percentual_reducao Decimal, 3 valor_bc_icms Decimal, "
     "4 aliquota_icms Decimal, 5 valor_icms Decimal"},
    {"ICMS900TributacaoST",
     "1 modalidade_bc_icms_st ModalidadeBCICMSST.Enum, 2 percentual_mva Decimal, "
     "3 percentual_reducao_st Decimal, 4 valor_bc_icms_st Decimal, 5 aliquota_icms_st Decimal, "
     "6 valor_icms_st Decimal"},
    {"ICMS900TributacaoSN", "1 percentual_sn Decimal, 2 credito_sn Decimal"},
    {"GrupoTributacaoICMS900",
     "1 origem_mercadoria OrigemMercadoria, 2 csosn Csosn, 3 tributacao_normal ICMS900TributacaoNormal, "
     "4 tributacao_st ICMS900TributacaoST, 5 tributacao_sn ICMS900TributacaoSN, "
     "6 fcp_st_retido GrupoFCPSTRetido"},
    {"GrupoRepasseICMSST",
     "1 origem_mercadoria OrigemMercadoria, 2 tributacao_icms Cst, 3 valor_bc_icms_st_retido Decimal, "
     "4 valor_icms_st_retido Decimal, 5 valor_bc_icms_st_destino Decimal, "
     "6 valor_icms_st_destino Decimal, 7 fcp_st_retido_anteriormente GrupoFCPSTRetidoAnteriormente, "
     "8 informacoes_icms_efetivo GrupoInformacoesICMSEfetivo, "
     "9 aliquota_suportada_consumidor_final Decimal, 10 valor_icms_proprio_substituto Decimal"},
    {"GrupoTributacaoPIS00",
     "1 cst CSTPISAliquota, 2 valor_bc Decimal, 3 percentual_aliquota Decimal, 4 valor Decimal"},
    {"GrupoTributacaoPIS01", "1 cst CSTPISNT"},
    {"GrupoTributacaoPIS02",
     "1 cst CSTPISOutrasOperacoes, 2 valor_bc Decimal, 3 percentual_aliquota Decimal, 4 valor Decimal"},
    {"GrupoTributacaoCofins00",
     "1 cst CSTCofinsAliquota, 2 valor_bc Decimal, 3 percentual_aliquota Decimal, 4 valor Decimal"},
    {"GrupoTributacaoCofins01", "1 cst CSTCofinsNT"},
    {"GrupoTributacaoCofins02",
     "1 cst CSTCofinsOutrasOperacoes, 2 valor_bc Decimal, 3 percentual_aliquota Decimal, 4 valor Decimal"},
    {"InformacoesCideCombustiveis", "1 base_calculo Decimal, 2 valor_aliquota Decimal, 3 valor_cide Decimal"},
    {"EncerranteBombaCombustivel",
     "1 identificacao_bico uint32, 2 identificacao_bomba google.protobuf.UInt32Value, "
     "3 identificacao_tanque uint32, 4 valor_inicial Decimal, 5 valor_final Decimal"},
    {"InformacoesCombustivelGlp",
     "1 percentual_derivado_do_petroleo Decimal, 2 percentual_gas_natural_nacional Decimal, "
     "3 percentual_gas_natural_importado Decimal, 4 valor_partida Decimal"},
    {"GrupoDetalhamentoCombustivel",
     "1 descricao_anp string, 2 codigo_produto_anp uint64, 3 codif google.protobuf.StringValue, "
     "4 quantidade_faturada_temperatura_ambiente Decimal, 5 uf_consumo string, "
     "6 informacoes_glp InformacoesCombustivelGlp, 7 informacoes_cide InformacoesCideCombustiveis, "
     "8 encerrante EncerranteBombaCombustivel"},
    {"Endereco",
     "1 cep google.protobuf.UInt32Value, 2 logadouro string, 3 numero string, "
     "4 complemento google.protobuf.StringValue, 5 bairro string, 6 pais google.protobuf.StringValue, "
     "7 ibge_municipio uint32, 8 uf string, 9 nome_municipio string, "
     "10 ibge_pais google.protobuf.UInt32Value"},
    {"Destinatario",
     "1 cnpj google.protobuf.StringValue, 2 cpf google.protobuf.StringValue, "
     "3 razao_social google.protobuf.StringValue, 4 endereco Endereco, "
     "5 telefone google.protobuf.StringValue, 6 email google.protobuf.StringValue, "
     "7 inscricao_estadual google.protobuf.StringValue, "
     "8 indicador_ie Destinatario.IndicadorInscricaoEstadual, "
     "9 indicador_de_estrangeiro google.protobuf.StringValue"},
    {"Emitente",
     "1 cnpj google.protobuf.StringValue, 2 razao_social string, "
     "3 nome_fantasia google.protobuf.StringValue, 4 endereco Endereco, 5 inscricao_estadual string, "
     "6 inscricao_estadual_st google.protobuf.StringValue, 7 regime_fiscal Emitente.RegimeTributario, "
     "8 telefone google.protobuf.StringValue, 9 inscricao_municipal google.protobuf.StringValue, "
     "10 cnae google.protobuf.UInt32Value"},
    {"TransacaoTEF",
     "1 tipo_integracao TransacaoTEF.TipoIntegracao, 2 cnpj google.protobuf.StringValue, "
     "3 bandeira TransacaoTEF.Bandeira, 4 numero_autorizacao google.protobuf.StringValue"},
    {"DetalhesPagamento",
     "1 indicador_forma_pagamento DetalhesPagamento.IndicadorFormaPagamento, "
     "2 meio_pagamento DetalhesPagamento.MeioDePagamento, 3 valor_pagamento Decimal, "
     "4 informacoes_cartao TransacaoTEF, 5 descricao_meio_pagamento google.protobuf.StringValue"},
    {"TributacaoPISCofins",
     "1 grupo_pis_00 GrupoTributacaoPIS00 oneof GrupoTributacaoPIS, "
     "2 grupo_pis_01 GrupoTributacaoPIS01 oneof GrupoTributacaoPIS, "
     "3 grupo_pis_02 GrupoTributacaoPIS02 oneof GrupoTributacaoPIS, "
     "4 grupo_cofins_00 GrupoTributacaoCofins00 oneof GrupoTributacaoCofins, "
     "5 grupo_cofins_01 GrupoTributacaoCofins01 oneof GrupoTributacaoCofins, "
     "6 grupo_cofins_02 GrupoTributacaoCofins02 oneof GrupoTributacaoCofins"},
    {"IPIDevolvido", "1 valor_ipi_devolvido Decimal"},
    {"TributosDevolvidos", "1 percentual_devolvido Decimal, 2 ipi_devolvido IPIDevolvido"},
    {"ISSQN",
     "1 bc Decimal, 2 aliquota Decimal, 3 valor_issqn Decimal, 4 codigo_municipio_ocorrencia uint32, "
     "5 item_lista_servicos string, 6 retencao_iss Decimal, 7 indicador_iss uint32, "
     "8 indicador_incentivo uint32"},
    {"Produto",
     "1 codigo_produto string, 2 codigo_barras string, 3 descricao string, 4 ncm uint32, 5 cfop uint32, "
     "6 cest google.protobuf.UInt32Value, 7 unidade_comercial string, 8 quantidade_comercial Decimal, "
     "9 valor_unitario_comercial Decimal, 10 valor_total_bruto Decimal, "
     "11 codigo_barras_tributavel string, 12 unidade_tributavel string, 13 quantidade_tributavel Decimal, "
     "14 valor_unitario_tributavel Decimal, 15 valor_frete Decimal, 16 valor_desconto Decimal, "
     "17 valor_despesas_acessorias Decimal, "
     "18 indicador_item_compoe_total Produto.IndicadorItemCompoeValorTotal, "
     "19 pedido_ordem_de_compra google.protobuf.StringValue, "
     "20 codigo_produto_ordem_de_compra google.protobuf.UInt32Value, 21 valor_total_tributos Decimal, "
     "22 informacoes_adicionais google.protobuf.StringValue, "
     "23 grupo_icms_00 GrupoTributacaoICMS00 oneof Tributos, "
     "24 grupo_icms_01 GrupoTributacaoICMS10 oneof Tributos, "
     "25 grupo_icms_02 GrupoTributacaoICMS20 oneof Tributos, "
     "26 grupo_icms_03 GrupoTributacaoICMS30 oneof Tributos, "
     "27 grupo_icms_04 GrupoTributacaoICMS40 oneof Tributos, "
     "28 grupo_icms_05 GrupoTributacaoICMS51 oneof Tributos, "
     "29 grupo_icms_06 GrupoTributacaoICMS60 oneof Tributos, "
     "30 grupo_icms_07 GrupoTributacaoICMS70 oneof Tributos, "
     "31 grupo_icms_08 GrupoTributacaoICMS90 oneof Tributos, "
     "32 grupo_icms_09 GrupoTributacaoICMS101 oneof Tributos, "
     "33 grupo_icms_10 GrupoTributacaoICMS102 oneof Tributos, "
     "34 grupo_icms_11 GrupoTributacaoICMS201 oneof Tributos, "
     "35 grupo_icms_12 GrupoTributacaoICMS202 oneof Tributos, "
     "36 grupo_icms_13 GrupoTributacaoICMS500 oneof Tributos, "
     "37 grupo_icms_14 GrupoTributacaoICMS900 oneof Tributos, "
     "38 grupo_repasse_icms_st GrupoRepasseICMSST oneof Tributos, 43 issqn ISSQN oneof Tributos, "
     "39 tributacao_pis_cofins TributacaoPISCofins, "
     "40 grupo_detalhamento_combustivel GrupoDetalhamentoCombustivel oneof GrupoDetalhamento, "
     "41 tributos_devolvidos TributosDevolvidos, 42 codigo_beneficio_fiscal google.protobuf.StringValue"},
    {"TotaisNFe", totais},
    {"TotalNFeICMS", totais},
    {"TotalNFeISSQN",
     "1 valor_servico Decimal, 2 bc Decimal, 3 iss Decimal, 4 pis Decimal, 5 cofins Decimal, "
     "6 prestacao_servico Date, 7 iss_retido Decimal"},
    {"TotalNFeRetencaoTributos",
     "1 pis_retido Decimal, 2 cofins_retido Decimal, 3 csll_retido Decimal, 4 bc_irrf Decimal, "
     "5 irrf Decimal, 6 bc_retencao_previdencia Decimal, 7 retencao_previdencia Decimal"},
    {"TotalNFe",
     "1 total_nfe_icms TotalNFeICMS, 2 total_nfe_issqn TotalNFeISSQN, "
     "3 total_nfe_retencao_tributos TotalNFeRetencaoTributos"},
    {"GrupoProcessoReferenciado",
     "1 identificador_processo string, 2 indicador_origem GrupoProcessoReferenciado.IndicadorOrigem"},
    {"InformacoesAdicionais",
     "1 fisco google.protobuf.StringValue, 2 complementares google.protobuf.StringValue, "
     "3 grupo_processo_referenciado GrupoProcessoReferenciado repeated"},
    {"InformacoesPagamento", "1 detalhes_pagamento DetalhesPagamento repeated, 2 valor_total_troco Decimal"},
    {"Volumes", "1 quantidade uint32"},
    {"GrupoTransportador",
     "1 cnpj google.protobuf.StringValue, 2 cpf google.protobuf.StringValue, "
     "3 razao_social google.protobuf.StringValue, 4 inscricao_estadual google.protobuf.StringValue, "
     "5 endereco google.protobuf.StringValue, 6 municipio google.protobuf.StringValue, "
     "7 uf google.protobuf.StringValue"},
    {"InformacoesTransporte",
     "1 modalidade InformacoesTransporte.ModalidadeFrete, 2 volumes Volumes repeated, "
     "3 grupo_transportador GrupoTransportador"},
    {"IdentificacaoLocalRetirada", locais},
    {"IdentificacaoLocalEntrega", locais},
    {"InformacoesCodigoSeguranca", "1 identificador_csrt uint32, 2 hash_csrt string"},
    {"InformacoesResponsavelTecnico",
     "1 cnpj string, 2 nome_pessoa_a_ser_contatada string, 3 email string, 4 telefone string, "
     "5 informacoes_codigo_seguranca InformacoesCodigoSeguranca"},
    {"InformacoesIntermediador", "1 cnpj uint64, 2 indicador_cadastrado string"},
    {"NotaFiscal",
     "1 modelo_emissao string, 2 serie string, 3 numero uint32, 4 chave_acesso string, "
     "5 data_saida_entrada DateTime, 6 data_emissao DateTime, 7 ibge_uf_emissao uint32, "
     "8 ibge_municipio_emissao uint32, 9 indice_pagamento NotaFiscal.IndicadorFormaPagamento, "
     "10 operacao_para_consumidor_final NotaFiscal.ConsumidorFinal, 11 codigo_nf uint32, "
     "12 tipo_operacao NotaFiscal.TipoOperacao, 13 indicador_operacao NotaFiscal.IdDestino, "
     "14 natureza_operacao string, 15 indicador_presenca NotaFiscal.IndicadorPresenca, "
     "16 indicador_ambiente NotaFiscal.IdAmbiente, 17 produtos Produto repeated, "
     "18 totais TotaisNFe deprecated, 19 destinatario Destinatario, 20 emitente Emitente, "
     "21 informacoes_pagamento InformacoesPagamento, 22 informacoes_adicionais InformacoesAdicionais, "
     "23 tipo_emissao NotaFiscal.TipoDeEmissao, "
     "24 justificativa_contingencia google.protobuf.StringValue, 25 data_hora_contingencia DateTime, "
     "26 indicador_finalidade_emissao NotaFiscal.FinalidadeEmissao, "
     "27 informacoes_transporte InformacoesTransporte, "
     "28 identificacao_local_retirada IdentificacaoLocalRetirada, "
     "29 identificacao_local_entrega IdentificacaoLocalEntrega, "
     "30 informacoes_responsavel_tecnico InformacoesResponsavelTecnico, 31 total TotalNFe, "
     "32 indicador_intermediador NotaFiscal.IndicadorIntermediador oneof opt_indicador_intermediador, "
     "33 informacoes_intermediador InformacoesIntermediador"},
};

std::vector<enumeracao> const enumeracoes = {
    {"ModalidadeBCICMS.Enum", {{"MargemValorAgregado", 0}, {"Pauta", 1}, {"PrecoTabelado", 2}, {"ValorOperacao", 3}}},
    {"ModalidadeBCICMSST.Enum", {{"PrecoTabelado", 0}, {"ListaNegativa", 1}, {"ListaPositiva", 2}, {"ListaNeutra", 3}, {"MargemValorAgregado", 4}, {"Pauta", 5}}},
    {"OrigemMercadoria", {{"Nacional_0", 0}, {"Estrangeira_1", 1}, {"Estrangeira_2", 2}, {"Nacional_3", 3}, {"Nacional_4", 4}, {"Nacional_5", 5}, {"Estrangeira_6", 6}, {"Estrangeira_7", 7}, {"Nacional_8", 8}}},
    {"Cst", {{"Cst00", 0}, {"Cst10", 1}, {"Cst20", 2}, {"Cst30", 3}, {"Cst40", 4}, {"Cst41", 5}, {"Cst50", 6}, {"Cst51", 7}, {"Cst60", 8}, {"Cst70", 9}, {"Cst90", 10}}},
    {"Csosn", {{"Csosn101", 0}, {"Csosn102", 1}, {"Csosn103", 2}, {"Csosn201", 3}, {"Csosn202", 4}, {"Csosn203", 5}, {"Csosn300", 6}, {"Csosn400", 7}, {"Csosn500", 8}, {"Csosn900", 9}}},
    {"CSTCofinsAliquota", {{"CSTCofins01", 0}, {"CSTCofins02", 1}}},
    {"CSTPISAliquota", {{"CSTPIS01", 0}, {"CSTPIS02", 1}}},
    {"CSTCofinsNT", {{"CSTCofins04", 0}, {"CSTCofins05", 1}, {"CSTCofins06", 2}, {"CSTCofins07", 3}, {"CSTCofins08", 4}, {"CSTCofins09", 5}}},
    {"CSTPISNT", {{"CSTPIS04", 0}, {"CSTPIS05", 1}, {"CSTPIS06", 2}, {"CSTPIS07", 3}, {"CSTPIS08", 4}, {"CSTPIS09", 5}}},
    {"CSTCofinsOutrasOperacoes", {{"CSTCofins49", 0}, {"CSTCofins50", 1}, {"CSTCofins51", 2}, {"CSTCofins52", 3}, {"CSTCofins53", 4}, {"CSTCofins54", 5}, {"CSTCofins55", 6}, {"CSTCofins56", 7}, {"CSTCofins60", 8}, {"CSTCofins61", 9}, {"CSTCofins62", 10}, {"CSTCofins63", 11}, {"CSTCofins64", 12}, {"CSTCofins65", 13}, {"CSTCofins66", 14}, {"CSTCofins67", 15}, {"CSTCofins70", 16}, {"CSTCofins71", 17}, {"CSTCofins72", 18}, {"CSTCofins73", 19}, {"CSTCofins74", 20}, {"CSTCofins75", 21}, {"CSTCofins98", 22}, {"CSTCofins99", 23}}},
    {"CSTPISOutrasOperacoes", {{"CSTPIS49", 0}, {"CSTPIS50", 1}, {"CSTPIS51", 2}, {"CSTPIS52", 3}, {"CSTPIS53", 4}, {"CSTPIS54", 5}, {"CSTPIS55", 6}, {"CSTPIS56", 7}, {"CSTPIS60", 8}, {"CSTPIS61", 9}, {"CSTPIS62", 10}, {"CSTPIS63", 11}, {"CSTPIS64", 12}, {"CSTPIS65", 13}, {"CSTPIS66", 14}, {"CSTPIS67", 15}, {"CSTPIS70", 16}, {"CSTPIS71", 17}, {"CSTPIS72", 18}, {"CSTPIS73", 19}, {"CSTPIS74", 20}, {"CSTPIS75", 21}, {"CSTPIS98", 22}, {"CSTPIS99", 23}}},
    {"Destinatario.IndicadorInscricaoEstadual", {{"ContribuinteIcms", 0}, {"ContribuinteIsento", 1}, {"NaoContribuinte", 2}}},
    {"Emitente.RegimeTributario", {{"SimplesNacional", 0}, {"SimplesNacionalComExcesso", 1}, {"Normal", 2}}},
    {"TransacaoTEF.TipoIntegracao", {{"Integrado", 0}, {"NaoIntegrado", 1}}},
    {"TransacaoTEF.Bandeira", {{"VISA", 0}, {"MASTERCARD", 1}, {"AMERICAN_EXPRESS", 2}, {"SOROCRED", 3}, {"OUTROS", 4}, {"DINERSCLUB", 5}, {"ELO", 6}, {"HIPERCARD", 7}, {"AURA", 8}, {"CABAL", 9}, {"ALELO", 10}, {"BANES_CARD", 11}, {"CALCARD", 12}, {"CREDZ", 13}, {"DISCOVER", 14}, {"GOODCARD", 15}, {"GREENCARD", 16}, {"HIPER", 17}, {"JCB", 18}, {"MAIS", 19}, {"MAXVAN", 20}, {"POLICARD", 21}, {"REDECOMPRAS", 22}, {"SODEXO", 23}, {"VALECARD", 24}, {"VEROCHEQUE", 25}, {"VR", 26}, {"TICKET", 27}}},
    {"DetalhesPagamento.IndicadorFormaPagamento", {{"NaoEspecificado", 0}, {"PagamentoAVista", 1}, {"PagamentoAPrazo", 2}}},
    {"DetalhesPagamento.MeioDePagamento", {{"Dinheiro", 0}, {"Cheque", 1}, {"CartaoCredito", 2}, {"CartaoDebito", 3}, {"CreditoLoja", 4}, {"ValeAlimentacao", 5}, {"ValeRefeicao", 6}, {"ValePresente", 7}, {"ValeCombustivel", 8}, {"Outros", 9}, {"DuplicataMercantil", 10}, {"BoletoBancario", 11}, {"SemPagamento", 12}, {"DepositoBancario", 13}, {"PagamentoInstantaneo", 14}, {"TransferenciaBancaria", 15}, {"ProgramaDeFidelidade", 16}}},
    {"Produto.IndicadorItemCompoeValorTotal", {{"NaoCompoe", 0}, {"Compoe", 1}}},
    {"GrupoProcessoReferenciado.IndicadorOrigem", {{"SEFAZ", 0}, {"JUSTICA_FEDERAL", 1}, {"JUSTICA_ESTADUAL", 2}, {"SECEX_RFB", 3}, {"OUTROS", 9}}},
    {"InformacoesTransporte.ModalidadeFrete", {{"PorContaEmitente", 0}, {"PorContaDestinatarioOuRemetente", 1}, {"PorContaTerceiros", 2}, {"SemFrete", 3}, {"TransporteProprioRemetente", 4}, {"TransporteProprioDestinatario", 5}}},
    {"NotaFiscal.IndicadorFormaPagamento", {{"PagamentoAVista", 0}, {"PagamentoAPrazo", 1}, {"Outros", 2}}},
    {"NotaFiscal.ConsumidorFinal", {{"Nao", 0}, {"Sim", 1}}},
    {"NotaFiscal.TipoOperacao", {{"Entrada", 0}, {"Saida", 1}}},
    {"NotaFiscal.IdDestino", {{"OperacaoInterna", 0}, {"OperacaoInterestadual", 1}, {"OperacaoComExterior", 2}}},
    {"NotaFiscal.IndicadorPresenca", {{"NaoAplica", 0}, {"OperacaoPresencial", 1}, {"OperacaoNaoPresencialInternet", 2}, {"OperacaoNaoPresencialTeleAtendimento", 3}, {"NfceEntregaDomicilio", 4}, {"OperacaoNaoPresencial", 5}, {"OperacaoPresencialForaDoEstabelecimento", 6}}},
    {"NotaFiscal.IndicadorIntermediador", {{"OperacaoSemIntermediador", 0}, {"OperacaoEmSiteOuPlataformaDeTerceiros", 1}}},
    {"NotaFiscal.IdAmbiente", {{"Producao", 0}, {"Homologacao", 1}}},
    {"NotaFiscal.FinalidadeEmissao", {{"NFeNormal", 0}, {"NFeComplementar", 1}, {"NFeAjuste", 2}, {"DevolucaoMercadoria", 3}}},
    {"NotaFiscal.TipoDeEmissao", {{"EmissaoNormal", 0}, {"ContingenciaFSIA", 1}, {"ContingenciaSCAN", 2}, {"ContingenciaDPEC", 3}, {"ContingenciaFSDA", 4}, {"ContingenciaSVCAN", 5}, {"ContingenciaSVCRS", 6}, {"ContingenciaOffline", 7}}},
};

gp::DescriptorPool const& pool()
{
    // Naming the root message links its library and registers every file.
    (void)velk::internal::nfe::serialization::NotaFiscal::descriptor();
    return *gp::DescriptorPool::generated_pool();
}

std::string relativo(std::string const& nome_completo)
{
    std::string const prefixo = pacote + ".";
    return nome_completo.rfind(prefixo, 0) == 0 ? nome_completo.substr(prefixo.size()) : nome_completo;
}

std::string tipo_de(gp::FieldDescriptor const& field)
{
    if (field.message_type() != nullptr) {
        return relativo(field.message_type()->full_name());
    }
    if (field.enum_type() != nullptr) {
        return relativo(field.enum_type()->full_name());
    }
    return field.type_name();
}

std::string campo_de(gp::FieldDescriptor const& field)
{
    std::string texto = std::to_string(field.number()) + " " + field.name() + " " + tipo_de(field);
    if (field.is_repeated()) {
        texto += " repeated";
    } else if (field.options().deprecated()) {
        texto += " deprecated";
    } else if (field.containing_oneof() != nullptr) {
        texto += " oneof " + field.containing_oneof()->name();
    }
    return texto;
}

TEST(esquema_nota, every_file_is_proto3_of_the_package_with_its_imports_in_order)
{
    int mensagens_no_pacote = 0;
    for (arquivo const& esperado : arquivos) {
        SCOPED_TRACE(esperado.nome);
        gp::FileDescriptor const* file = pool().FindFileByName(pasta + esperado.nome + ".proto");
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(file->package(), pacote);
        EXPECT_EQ(file->syntax(), gp::FileDescriptor::SYNTAX_PROTO3);
        std::vector<std::string> importa;
        for (int i = 0; i < file->dependency_count(); ++i) {
            std::string nome = file->dependency(i)->name();
            importa.push_back(nome.rfind(pasta, 0) == 0 ? nome.substr(pasta.size()) : nome);
        }
        EXPECT_EQ(importa, esperado.importa);
        mensagens_no_pacote += file->message_type_count();
    }
    EXPECT_EQ(arquivos.size(), 69U);
    EXPECT_EQ(mensagens_no_pacote, static_cast<int>(mensagens.size()));
}

TEST(esquema_nota, every_message_has_exactly_its_fields)
{
    for (mensagem const& esperada : mensagens) {
        SCOPED_TRACE(esperada.nome);
        gp::Descriptor const* message = pool().FindMessageTypeByName(pacote + "." + esperada.nome);
        ASSERT_NE(message, nullptr);
        std::string campos;
        for (int i = 0; i < message->field_count(); ++i) {
            campos += (i == 0 ? "" : ", ") + campo_de(*message->field(i));
        }
        EXPECT_EQ(campos, esperada.campos);
    }
}

TEST(esquema_nota, every_enumeration_has_exactly_its_values)
{
    for (enumeracao const& esperada : enumeracoes) {
        SCOPED_TRACE(esperada.nome);
        gp::EnumDescriptor const* enumeration = pool().FindEnumTypeByName(pacote + "." + esperada.nome);
        ASSERT_NE(enumeration, nullptr);
        ASSERT_EQ(enumeration->value_count(), static_cast<int>(esperada.valores.size()));
        for (int i = 0; i < enumeration->value_count(); ++i) {
            EXPECT_EQ(enumeration->value(i)->name(), esperada.valores[static_cast<std::size_t>(i)].nome);
            EXPECT_EQ(enumeration->value(i)->number(), esperada.valores[static_cast<std::size_t>(i)].numero);
        }
    }
}

}  // namespace
