#include "demo_certificate.hpp"

#include <pki/certificate_authority.hpp>

namespace velk::demo {

cryptography::pkcs12 make_demo_certificate(core::result::stack& stack)
{
    tools::pki::certificate_authority const authority("Velk Demo CA");
    std::string const password = "demo";
    core::byte_array const bundle =
        authority.issue_client("EMPRESA DEMONSTRACAO LTDA:12345678000195").to_pkcs12(password);
    return cryptography::pkcs12::from_byte_array(bundle, password, stack);
}

}  // namespace velk::demo
