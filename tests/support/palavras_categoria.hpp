#pragma once

#include <velk/core/result/category.hpp>

#include <initializer_list>

namespace velk::test {

// One row of a category's published table: a code and its words, exactly as
// written, accents included.
struct palavras_codigo {
    int codigo;
    char const* palavras;
};

// Checks a category against its published table: its name, the words of every
// code in `tabela`, and that the codes in `sem_palavras` (and 0 and the number
// after the last code) have none, asking for them ending the process. The two
// lists together must be the codes 1, 2, 3... with none left out.
void conferir_palavras(core::result::category const& categoria, char const* nome,
                       std::initializer_list<palavras_codigo> tabela, std::initializer_list<int> sem_palavras = {});

}  // namespace velk::test
