#pragma once

#include "demo_context.hpp"
#include "demo_simulator.hpp"
#include "demo_xml.hpp"

#include <velk/erp/tarn/nfe/servico/autorizacao.hpp>
#include <velk/erp/tarn/nfe/servico/consulta.hpp>
#include <velk/erp/tarn/nfe/servico/consulta_gtin.hpp>
#include <velk/erp/tarn/nfe/servico/consulta_recibo.hpp>
#include <velk/erp/tarn/nfe/servico/evento.hpp>
#include <velk/erp/tarn/nfe/servico/inutilizacao.hpp>

#include <string>

namespace velk::demo {

// One exchange as the output folder keeps it: `stem`-pedido.xml holds the
// SOAP envelope as it reached the authority, `stem`-resposta.xml the answer
// as the library read it.
struct exchange_files {
    std::string stem;          // "autorizacao/nfce-autorizacao"
    std::string request_kind;  // "enviNFe"
    std::string answer_kind;   // "retEnviNFe"
    std::string layout;        // "4.00"
    bool request_signed = false;
    bool answer_signed = false;
    std::string description;  // what the request carries, for the manifest
};

// The local SEFAZ simulator standing for the authority of the whole road,
// and the issuer's services connected to it over mutual TLS. One authority
// for every step, so that events and queries find the notes it authorized.
class demo_authority {
public:
    explicit demo_authority(demo_context& context);

    // The output folder the exchanges go to, for what a step keeps of them.
    demo_context& context() { return context_; }

    erp::tarn::nfe::servico::autorizacao const& autorizacao() const { return autorizacao_; }
    erp::tarn::nfe::servico::consulta_recibo const& recibo() const { return recibo_; }
    erp::tarn::nfe::servico::consulta const& consulta() const { return consulta_; }
    erp::tarn::nfe::servico::inutilizacao const& inutilizacao() const { return inutilizacao_; }
    erp::tarn::nfe::servico::consulta_gtin const& gtin() const { return gtin_; }
    erp::tarn::nfe::servico::evento const& evento() const { return evento_; }

    // Calls `service` of the simulator's web service `wsdl_service`, whose
    // operation is `operation`; fails the demo when the call fails; writes
    // both messages into the output folder.
    template <class Service, class Request>
    typename Service::resposta_type exchange(Service const& service, Request const& request,
                                             char const* wsdl_service, char const* operation,
                                             exchange_files const& files)
    {
        erp::tarn::nfe::web_server_info server = simulator_.server(wsdl_service, operation);
        server.set_namespace_header("sem_namespace");
        core::result::stack stack;
        auto answer = service.executar(request, server, stack);
        check(stack, files.stem.c_str());
        record(files, to_text(answer.get_xml(), files.stem.c_str()));
        return answer;
    }

    // The query by key of layout 4.00 in the test environment.
    erp::tarn::nfe::sefaz_data::resposta::consulta query_by_key(erp::tarn::chave_acesso const& chave,
                                                                std::string const& stem, char const* description);

private:
    void record(exchange_files const& files, std::string const& answer);

    demo_context& context_;
    demo_simulator simulator_;
    unsigned exchanges_ = 0;
    erp::tarn::nfe::servico::autorizacao autorizacao_;
    erp::tarn::nfe::servico::consulta_recibo recibo_;
    erp::tarn::nfe::servico::consulta consulta_;
    erp::tarn::nfe::servico::inutilizacao inutilizacao_;
    erp::tarn::nfe::servico::consulta_gtin gtin_;
    erp::tarn::nfe::servico::evento evento_;
};

}  // namespace velk::demo
