#pragma once

#include <velk/core/date.hpp>
#include <velk/core/datetime.hpp>
#include <velk/core/decimal.hpp>
#include <velk/erp/fiscal/nota_fiscal.hpp>

#include <string_view>

namespace velk::test {

// Notes as a real issuer sends them, for tests and benchmarks: valid check
// digits in every CNPJ, CPF, state registration, GTIN and access key, real
// IBGE codes, and totals that add up.

// An NFC-e (model 65) of a bakery and grocery in São Paulo, in homologation:
// coffee, bread by weight and a soft drink under tax substitution, Simples
// Nacional, paid in cash with change, no recipient.
erp::fiscal::nota_fiscal nota_nfce_simples();

// An NF-e (model 55) of a wholesale distributor in Campinas (SP) to a hospital
// in Rio de Janeiro that pays no ICMS, in homologation: a medicine with its
// batch, an imported oximeter with its import declaration and diesel for the
// generators; delivery at the hospital's warehouse in Duque de Caxias, two
// referenced notes, two parties allowed to download the XML, carrier, bill
// in two instalments, bank slip, technical manager.
erp::fiscal::nota_fiscal nota_nfe_completa();

// Text to value, for the literals of tests: "18.90", "-0.05".
core::decimal valor(std::string_view texto);

// A date and time in Brasília time (UTC-03:00).
core::datetime horario_brasilia(int ano, unsigned mes, unsigned dia, int hora, unsigned minuto, unsigned segundo);

}  // namespace velk::test
