#pragma once

// The refusals of the builder as tables: each case changes a valid note and
// gives the code, its words, the argument "value" and the items that the
// readers pushed beneath it.

#include <velk/core/result/stack.hpp>
#include <velk/erp/fiscal/nota_fiscal.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/montar_layout_4_00.hpp>
#include <velk/erp/tarn/nfe/processar_nota_result_category.hpp>

#include <gtest/gtest.h>

#include <cctype>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace velk::test {

struct item_esperado {
    std::string categoria;
    int codigo;
};

inline item_esperado const conversor{"core-converter", 2};
inline item_esperado const cpf_interno{"internal-errors", 1};
inline item_esperado const cnpj_interno{"internal-errors", 2};

struct recusa {
    char const* caso;
    std::function<void(erp::fiscal::nota_fiscal&)> alterar;
    int codigo;
    char const* palavras;
    char const* valor;                  // null: no argument
    std::vector<item_esperado> abaixo;  // from the bottom of the stack
};

// A raw value of an enumeration, also beyond its range.
template <class Enumeracao>
Enumeracao bruto(unsigned int valor)
{
    return static_cast<Enumeracao>(valor);
}

inline void PrintTo(recusa const& caso, std::ostream* saida)
{
    *saida << caso.caso;
}

// Builds the changed note and checks the refusal on top of the stack.
inline void verificar_recusa(erp::fiscal::nota_fiscal nota, recusa const& caso)
{
    caso.alterar(nota);
    core::result::stack report;
    auto const arvore = erp::tarn::nfe::layout_4_00::montar_layout_4_00(nota, report);

    ASSERT_TRUE(report.has_failed());
    EXPECT_TRUE(arvore.versao.empty()) << "a refused note gives a default tree";
    ASSERT_EQ(report.size(), caso.abaixo.size() + 1) << report.to_string();
    auto const& topo = report.top();
    EXPECT_TRUE(topo.get_category() == erp::tarn::nfe::processar_nota_result_category::instance());
    EXPECT_EQ(topo.get_value(), caso.codigo);
    EXPECT_STREQ(topo.get_message(), caso.palavras);
    if (caso.valor == nullptr) {
        EXPECT_TRUE(topo.get_arguments().empty());
    } else {
        ASSERT_EQ(topo.get_arguments().size(), 1u);
        EXPECT_EQ(topo.get_arguments()[0].first, "value");
        EXPECT_EQ(topo.get_arguments()[0].second, caso.valor);
    }
    for (std::size_t posicao = 0; posicao < caso.abaixo.size(); ++posicao) {
        auto const& item = *(report.begin() + static_cast<std::ptrdiff_t>(posicao));
        EXPECT_STREQ(item.get_category().get_name(), caso.abaixo[posicao].categoria.c_str()) << posicao;
        EXPECT_EQ(item.get_value(), caso.abaixo[posicao].codigo) << posicao;
        EXPECT_TRUE(item.get_arguments().empty()) << posicao;
    }
}

// The test name of a case: its code and its words in the alphabet of names.
inline std::string nome_do_caso(testing::TestParamInfo<recusa> const& info)
{
    std::string nome = std::to_string(info.param.codigo) + "_" + info.param.caso;
    for (char& c : nome) {
        if (!std::isalnum(static_cast<unsigned char>(c))) {
            c = '_';
        }
    }
    return nome;
}

}  // namespace velk::test
