#include <support/test_certificates.hpp>

namespace velk::test {

test_certificates const& test_certificates::instance()
{
    static test_certificates const certificates;
    return certificates;
}

test_certificates::test_certificates()
    : authority_("Velk Test CA"),
      taxpayer_(authority_.issue_client("EMPRESA DE TESTES LTDA:12345678000195")),
      other_(authority_.issue_client("OUTRA EMPRESA LTDA:98765432000198")),
      password_("senha-de-teste"),
      pkcs12_(taxpayer_.to_pkcs12(password_))
{
}

}  // namespace velk::test
