#include <velk/erp/tarn/nfe/sefaz_data/resposta/mensagem_sefaz.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

struct mensagem_sefaz::dados {
    core::optional<unsigned int> codigo;
    std::string mensagem;
};

mensagem_sefaz::mensagem_sefaz() = default;
mensagem_sefaz::mensagem_sefaz(mensagem_sefaz const& other) = default;
mensagem_sefaz::mensagem_sefaz(mensagem_sefaz&& other) noexcept = default;
mensagem_sefaz& mensagem_sefaz::operator=(mensagem_sefaz const& other) = default;
mensagem_sefaz& mensagem_sefaz::operator=(mensagem_sefaz&& other) noexcept = default;
mensagem_sefaz::~mensagem_sefaz() = default;

core::optional<unsigned int> mensagem_sefaz::get_codigo() const { return dados_->codigo; }
void mensagem_sefaz::set_codigo(core::optional<unsigned int> const& codigo) { dados_->codigo = codigo; }
std::string mensagem_sefaz::get_mensagem() const { return dados_->mensagem; }
void mensagem_sefaz::set_mensagem(std::string const& mensagem) { dados_->mensagem = mensagem; }

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta
