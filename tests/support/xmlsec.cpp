#include <support/xmlsec.hpp>

#include <support/files.hpp>

#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <filesystem>
#include <sys/wait.h>

namespace velk::test {

namespace {

std::filesystem::path fresh_folder()
{
    static std::atomic<int> counter{0};
    return scratch_dir("xmlsec-" + std::to_string(getpid()) + "-" + std::to_string(counter++));
}

std::string quoted(std::string const& text)
{
    std::string result = "'";
    for (char const c : text) {
        result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return result + "'";
}

xmlsec_result run(std::string const& arguments)
{
    xmlsec_result result;
    std::string const command = "xmlsec1 " + arguments + " 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        result.output = "cannot run: " + command;
        return result;
    }
    char buffer[4096];
    std::size_t read = 0;
    while ((read = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) {
        result.output.append(buffer, read);
    }
    int const status = pclose(pipe);
    result.success = status != -1 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    return result;
}

}  // namespace

xmlsec_result xmlsec_verify(std::string const& document, std::string const& id_element,
                            std::string const& trusted_ca_pem)
{
    auto const folder = fresh_folder();
    write_text(folder / "signed.xml", document);
    std::string trust = "--insecure";
    if (!trusted_ca_pem.empty()) {
        write_text(folder / "ca.pem", trusted_ca_pem);
        trust = "--trusted-pem " + quoted((folder / "ca.pem").string());
    }
    return run("--verify --id-attr:Id " + quoted(id_element) + " " + trust + " " +
               quoted((folder / "signed.xml").string()));
}

xmlsec_result xmlsec_sign(std::string const& template_document, std::string const& id_element,
                          std::string const& private_key_pem, std::string const& certificate_pem,
                          std::string& signed_document)
{
    auto const folder = fresh_folder();
    write_text(folder / "template.xml", template_document);
    write_text(folder / "key.pem", private_key_pem);
    write_text(folder / "certificate.pem", certificate_pem);
    xmlsec_result result =
        run("--sign --id-attr:Id " + quoted(id_element) + " --privkey-pem " +
            quoted((folder / "key.pem").string() + "," + (folder / "certificate.pem").string()) + " --output " +
            quoted((folder / "signed.xml").string()) + " " + quoted((folder / "template.xml").string()));
    if (result.success) {
        signed_document = read_text(folder / "signed.xml");
    }
    return result;
}

}  // namespace velk::test
