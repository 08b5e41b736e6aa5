#include "loopback_pki.hpp"

#include <fstream>
#include <stdexcept>

namespace velk::tools::sefaz_sim {

namespace {

void write_file(std::filesystem::path const& path, std::string const& contents)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << contents;
    if (!out) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

}  // namespace

loopback_pki::loopback_pki(std::filesystem::path folder, std::string password)
    : authority_("Velk Simulador CA"), password_(std::move(password)), ca_file_(folder / "ca.pem"),
      server_certificate_file_(folder / "server.pem"), server_key_file_(folder / "server-key.pem"),
      client_(authority_.issue_client("EMPRESA DEMONSTRACAO LTDA:12345678000195"))
{
    std::filesystem::create_directories(folder);
    pki::issued_certificate const server = authority_.issue_server({"localhost"}, {"127.0.0.1"});
    write_file(ca_file_, authority_.certificate_pem());
    write_file(server_certificate_file_, server.certificate_pem());
    write_file(server_key_file_, server.private_key_pem());
    client_pkcs12_ = client_.to_pkcs12(password_);
}

std::vector<std::string> loopback_pki::server_arguments() const
{
    return {"--cert", server_certificate_file_.string(), "--key", server_key_file_.string(), "--client-ca",
            ca_file_.string()};
}

}  // namespace velk::tools::sefaz_sim
