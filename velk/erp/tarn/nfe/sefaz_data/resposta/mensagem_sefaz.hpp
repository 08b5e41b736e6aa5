#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/detail/valor_oculto.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

// The authority's free message to the taxpayer that a protocol may carry
// (cMsg, xMsg): a notice of the state, not a status.
class VELK_EXPORT mensagem_sefaz {
public:
    mensagem_sefaz();
    mensagem_sefaz(mensagem_sefaz const& other);
    mensagem_sefaz(mensagem_sefaz&& other) noexcept;
    mensagem_sefaz& operator=(mensagem_sefaz const& other);
    mensagem_sefaz& operator=(mensagem_sefaz&& other) noexcept;
    ~mensagem_sefaz();

    // cMsg, the state's own code of the message; absent when only the text came.
    core::optional<unsigned int> get_codigo() const;
    void set_codigo(core::optional<unsigned int> const& codigo);
    // xMsg.
    std::string get_mensagem() const;
    void set_mensagem(std::string const& mensagem);

private:
    struct dados;
    tarn::detail::valor_oculto<dados> dados_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
