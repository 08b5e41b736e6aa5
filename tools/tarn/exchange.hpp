#pragma once

#include "command_error.hpp"

#include <velk/erp/tarn/nfe/web_server_info.hpp>

#include <string>

namespace velk::tools::tarn {

// One call to an authority through a service object of the library; throws
// command_error (transport or input, by what the stack holds) when the call
// fails. An answer that refuses is a successful call.
template <class Service>
typename Service::resposta_type exchange(Service const& service, typename Service::requisicao_type const& request,
                                         erp::tarn::nfe::web_server_info const& server, std::string const& step)
{
    core::result::stack stack;
    typename Service::resposta_type answer = service.executar(request, server, stack);
    throw_if_failed(stack, step);
    return answer;
}

}  // namespace velk::tools::tarn
