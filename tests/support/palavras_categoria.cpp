#include <support/palavras_categoria.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace velk::test {

void conferir_palavras(core::result::category const& categoria, char const* nome,
                       std::initializer_list<palavras_codigo> tabela, std::initializer_list<int> sem_palavras)
{
    EXPECT_STREQ(categoria.get_name(), nome);
    std::vector<int> codigos(sem_palavras);
    for (palavras_codigo const& linha : tabela) {
        EXPECT_STREQ(categoria.get_message(linha.codigo), linha.palavras) << nome << " " << linha.codigo;
        codigos.push_back(linha.codigo);
    }
    std::sort(codigos.begin(), codigos.end());
    for (std::size_t indice = 0; indice < codigos.size(); ++indice) {
        ASSERT_EQ(codigos[indice], static_cast<int>(indice) + 1) << nome << ": the table leaves a code out";
    }
    std::vector<int> sem_texto(sem_palavras);
    sem_texto.push_back(0);
    sem_texto.push_back(static_cast<int>(codigos.size()) + 1);
    for (int const codigo : sem_texto) {
        EXPECT_EXIT(categoria.get_message(codigo), testing::ExitedWithCode(1), "") << nome << " " << codigo;
    }
}

}  // namespace velk::test
