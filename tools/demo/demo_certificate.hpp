#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>

namespace velk::demo {

// The throw-away certificate of the demo's issuer, EMPRESA DEMONSTRACAO LTDA,
// issued by a CA made for the run.
cryptography::pkcs12 make_demo_certificate(core::result::stack& stack);

}  // namespace velk::demo
