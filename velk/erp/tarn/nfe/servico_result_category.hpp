#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/result/table_category.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/fiscal/tipo_emissao.hpp>
#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/modelo.hpp>
#include <velk/erp/tarn/nfe/servidor_emissao.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>

#include <string>
#include <unordered_map>

namespace velk::erp::inline v4::tarn::nfe {

// Failures of the web service calls ("tarn-nfe-servico-geral").
class servico_result_category final : public core::result::table_category {
public:
    template <int N>
    using code = core::result::code<servico_result_category, N>;
    using item = core::result::stack::item;

    static servico_result_category const& instance();

    // No web server for the request: for applications that choose their own.
    void create(item&, code<1>, std::string const& servico, std::string const& uf, std::string const& ambiente,
                std::string const& versao, std::string const& servidor_emissao) const;
    // "description", only when not empty.
    void create(item&, code<2>, std::string const& description) const;
    void create(item&, code<3>) const {}
    // A SOAP fault: each pair of the fault's texts as an argument.
    void create(item&, code<4>, std::unordered_map<std::string, std::string> const& fault) const;
    void create(item&, code<5>, std::string const& endpoint, std::string const& action) const;
    void create(item&, code<7>, versao value) const;
    void create(item&, code<8>, ambiente value) const;
    void create(item&, code<9>) const {}
    void create(item&, code<10>, servidor_emissao value) const;
    void create(item&, code<11>) const {}
    void create(item&, code<12>, estado value) const;
    void create(item&, code<13>) const {}
    void create(item&, code<14>, fiscal::tipo_emissao esperado, fiscal::tipo_emissao recebido) const;
    void create(item&, code<15>, modelo esperado, modelo recebido) const;
    void create(item&, code<16>, std::string const& description, core::byte_array const& soap_message) const;

private:
    servico_result_category();
};

}  // namespace velk::erp::inline v4::tarn::nfe
