#pragma once

#include "exit_status.hpp"
#include "json_value.hpp"

#include <velk/core/result/stack.hpp>

#include <string>

namespace velk::tools::tarn {

// A failure the library left on a stack, as tarn reports it.
class failure_report {
public:
    // What a failed call to the authority means for the exit status: the
    // exchange itself failed (connection, TLS, time-out, an answer that is no
    // readable SOAP or holds no result) is transport; anything else is a
    // request the library would not make from the input.
    static exit_status classify(core::result::stack const& stack);

    // {"etapa": step, "motivos": [{"categoria", "codigo", "mensagem",
    // "argumentos"}...]}, the latest reason first, as the library wrote them.
    static json_value describe(core::result::stack const& stack, std::string const& step);

    // A failure of the tool's own, outside the library.
    static json_value describe(std::string const& step, std::string const& reason);
};

}  // namespace velk::tools::tarn
