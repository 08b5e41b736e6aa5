#pragma once

// The notes of the JSON corpus, read as a point of sale hands them over.

#include <support/files.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/protobuf/nota_json.hpp>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace velk::test {

using NotaFiscal = ::velk::internal::nfe::serialization::NotaFiscal;

// Beside this file; the compiler names it relative to the build folder or whole.
inline std::filesystem::path pasta_notas_json()
{
    return (std::filesystem::path(VELK_BINARY_DIR) / __FILE__).parent_path() / "notas";
}

// The note of notas/<nome>.json; a test fails when it does not read.
inline NotaFiscal nota_json(std::string const& nome)
{
    NotaFiscal nota;
    core::result::stack report;
    EXPECT_TRUE(erp::tarn::nfe::protobuf::ler_nota_json(read_text(pasta_notas_json() / (nome + ".json")), nota, report))
        << nome << ": " << report.to_string();
    return nota;
}

}  // namespace velk::test
