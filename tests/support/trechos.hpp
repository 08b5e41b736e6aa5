#pragma once

// Expectations on a generated document as pieces of its text, for tables that
// set what two layouts make of the same note side by side.

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velk::test {

// Each expectation is a piece of text the document holds ("+"), does not hold
// ("-"), or the whole of a failed generation ("!" and the failure in one
// line); `gerado` is the document's text or, after a failure, "!" and its line.
inline void conferir_trechos(std::string const& gerado, std::vector<std::string> const& esperado,
                             char const* layout)
{
    for (std::string const& item : esperado) {
        std::string const texto = item.substr(1);
        switch (item[0]) {
        case '+':
            EXPECT_NE(gerado.find(texto), std::string::npos) << layout << " lacks " << texto;
            break;
        case '-':
            EXPECT_EQ(gerado.find(texto), std::string::npos) << layout << " holds " << texto;
            break;
        default:
            EXPECT_EQ(gerado, item) << layout;
        }
    }
}

}  // namespace velk::test
