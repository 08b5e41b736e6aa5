#include "status_codes.hpp"

#include <map>

namespace velk::tools::sefaz_sim {

std::string const& status_codes::reason(int code)
{
    static std::map<int, std::string> const texts = {
        {100, "Autorizado o uso da NF-e"},
        {101, "Cancelamento de NF-e homologado"},
        {102, "Inutilização de número homologado"},
        {103, "Lote recebido com sucesso"},
        {104, "Lote processado"},
        {105, "Lote em processamento"},
        {106, "Lote não localizado"},
        {107, "Serviço em Operação"},
        {108, "Serviço Paralisado Momentaneamente (curto prazo)"},
        {109, "Serviço Paralisado sem Previsão"},
        {128, "Lote de Evento Processado"},
        {135, "Evento registrado e vinculado a NF-e"},
        {136, "Evento registrado, mas não vinculado a NF-e"},
        {204, "Rejeição: Duplicidade de NF-e"},
        {206, "Rejeição: NF-e já está inutilizada na Base de dados da SEFAZ"},
        {215, "Rejeição: Falha no schema XML"},
        {217, "Rejeição: NF-e não consta na base de dados da SEFAZ"},
        {222, "Rejeição: Protocolo de Autorização de Uso difere do cadastrado"},
        {225, "Rejeição: Falha no Schema XML do lote de NFe"},
        {236, "Rejeição: Chave de Acesso com dígito verificador inválido"},
        {239, "Rejeição: Cabeçalho - Versão do arquivo XML não suportada"},
        {241, "Rejeição: Um número da faixa já foi utilizado"},
        {252, "Rejeição: Ambiente informado diverge do Ambiente de recebimento"},
        {297, "Rejeição: Assinatura difere do calculado"},
        {298, "Rejeição: Assinatura difere do padrão do Sistema"},
        {452, "Rejeição: Solicitada resposta síncrona para Lote com mais de uma NF-e (indSinc=1)"},
        {502,
         "Rejeição: Erro na Chave de Acesso - Campo Id não corresponde à concatenação dos campos correspondentes"},
        {539, "Rejeição: Duplicidade de NF-e com diferença na Chave de Acesso"},
        {563, "Rejeição: Já existe pedido de Inutilização com a mesma faixa de inutilização"},
        {573, "Rejeição: Duplicidade de Evento"},
        {580, "Rejeição: O evento exige uma NF-e autorizada"},
        {999, "Rejeição: Erro não catalogado"},
        // The central GTIN catalogue answers with codes of its own.
        {9490, "Consulta realizada com sucesso"},
        {9494, "Rejeição: GTIN não encontrado no Cadastro Centralizado de GTIN"},
    };
    auto const found = texts.find(code);
    return found == texts.end() ? texts.at(999) : found->second;
}

}  // namespace velk::tools::sefaz_sim
