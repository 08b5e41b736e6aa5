#pragma once

#include <velk/erp/fiscal/nota_fiscal.hpp>

#include <string>
#include <vector>

namespace velk::test {

// A note of the corpus: a name for test output, what it shows, and the note.
struct nota_do_corpus {
    std::string nome;
    std::string descricao;
    erp::fiscal::nota_fiscal (*criar)();
};

// Notes as real issuers of five states send them, model 55 and 65, covering
// every ICMS class of the model, the three forms of PIS and COFINS, IPI taxed
// and not taxed, import with its declaration and import tax, services under
// ISSQN, fuel, medicine, a firearm, an export, card and cash payments with
// change, a marketplace and a technical manager with its security code; and
// one note for each case where the schema asks another form than the plain
// reading of the model (the regime of services, IPI beside ISSQN, the place
// of clearance, indirect export, a card without integration type, no
// payment, contingency, ICMS90 and ICMSSN900 with every part). Keys,
// CNPJ, CPF, state registrations and GTIN carry valid check digits; the totals
// of each note add up.
std::vector<nota_do_corpus> const& corpus_notas();

}  // namespace velk::test
