#include "demo_authority.hpp"

#include <velk/cryptography/pkcs12.hpp>

#include <chrono>
#include <initializer_list>

namespace velk::demo {

demo_authority::demo_authority(demo_context& context) : context_(context), simulator_("autoridade")
{
    core::result::stack stack;
    cryptography::pkcs12 const tls =
        cryptography::pkcs12::from_byte_array(simulator_.pki().client_pkcs12(), simulator_.pki().password(), stack);
    check(stack, "the simulator's TLS client certificate");
    std::string const ca = simulator_.pki().ca_file().string();
    for (erp::tarn::nfe::servico::servico_base* service : std::initializer_list<erp::tarn::nfe::servico::servico_base*>{
             &autorizacao_, &recibo_, &consulta_, &inutilizacao_, &gtin_, &evento_}) {
        service->set_auth(tls, ca);
        service->set_timeout(std::chrono::seconds(10));
    }
}

erp::tarn::nfe::sefaz_data::resposta::consulta demo_authority::query_by_key(erp::tarn::chave_acesso const& chave,
                                                                            std::string const& stem,
                                                                            char const* description)
{
    auto const pedido = erp::tarn::nfe::sefaz_data::requisicao::consulta::from_data(
        chave, erp::tarn::nfe::versao::versao_4_00, erp::tarn::ambiente::homologacao);
    return exchange(consulta_, pedido, "NFeConsultaProtocolo4", "nfeConsultaNF",
                    {stem, "consSitNFe", "retConsSitNFe", "4.00", false, false, description});
}

void demo_authority::record(exchange_files const& files, std::string const& answer)
{
    context_.write({files.stem + "-pedido.xml", "soap-envelope", files.layout, "", "SP", files.request_signed,
                    "The SOAP 1.2 envelope with " + files.request_kind + " (" + files.description +
                        ") as it reached the simulator"},
                   simulator_.recorded_request(++exchanges_));
    context_.write({files.stem + "-resposta.xml", files.answer_kind, files.layout, "", "SP", files.answer_signed,
                    "The simulator's " + files.answer_kind + ", as the library read it"},
                   answer);
}

}  // namespace velk::demo
