#include <velk/cryptography/cryptography_result_category.hpp>

namespace velk::cryptography {
inline namespace v3 {

namespace {

template <int N>
using code = core::result::code<cryptography_result_category, N>;

}  // namespace

cryptography_result_category const& cryptography_result_category::instance()
{
    static cryptography_result_category const category;
    return category;
}

char const* cryptography_result_category::get_name() const
{
    return "velk-cryptography";
}

char const* cryptography_result_category::get_message(int code) const
{
    static char const* const messages[] = {
        "O conteúdo não é um arquivo PKCS#12 legível",
        "Senha do arquivo PKCS#12 incorreta",
        "O arquivo PKCS#12 não contém certificado e chave privada",
        "Certificado X.509 inválido",
        "Chave privada inválida",
        "Tipo de chave privada não suportado",
        "O certificado não corresponde à chave privada",
        "Codificação não suportada",
        "Falha no cálculo do hash",
        "Falha na assinatura digital",
        "Algoritmo não suportado",
        "O modelo da assinatura XML está incompleto",
        "A referência da assinatura não foi encontrada no documento",
        "A referência da assinatura aponta para mais de um elemento",
        "Nenhum elemento Signature foi encontrado sob o elemento pai",
        "Falha ao canonicalizar o XML a assinar",
    };
    if (code < 1 || code > static_cast<int>(sizeof messages / sizeof messages[0])) {
        show_invalid_value_message_and_exit(code);
    }
    return messages[code - 1];
}

void cryptography_result_category::create(core::result::stack::item& item, code<1>,
                                          std::string const& description) const
{
    item.set_argument("description", description);
}

void cryptography_result_category::create(core::result::stack::item& item, code<3>, std::string const& missing) const
{
    item.set_argument("missing", missing);
}

void cryptography_result_category::create(core::result::stack::item& item, code<4>,
                                          std::string const& description) const
{
    item.set_argument("description", description);
}

void cryptography_result_category::create(core::result::stack::item& item, code<5>,
                                          std::string const& description) const
{
    item.set_argument("description", description);
}

void cryptography_result_category::create(core::result::stack::item& item, code<6>, std::string const& type) const
{
    item.set_argument("type", type);
}

void cryptography_result_category::create(core::result::stack::item& item, code<7>, std::string const& subject) const
{
    item.set_argument("subject", subject);
}

void cryptography_result_category::create(core::result::stack::item& item, code<8>,
                                          std::string const& encoding) const
{
    item.set_argument("encoding", encoding);
}

void cryptography_result_category::create(core::result::stack::item& item, code<9>, std::string const& algorithm,
                                          std::string const& description) const
{
    item.set_argument("algorithm", algorithm);
    item.set_argument("description", description);
}

void cryptography_result_category::create(core::result::stack::item& item, code<10>,
                                          std::string const& description) const
{
    item.set_argument("description", description);
}

void cryptography_result_category::create(core::result::stack::item& item, code<11>,
                                          std::string const& algorithm) const
{
    item.set_argument("algorithm", algorithm);
}

void cryptography_result_category::create(core::result::stack::item& item, code<12>, std::string const& element) const
{
    item.set_argument("element", element);
}

void cryptography_result_category::create(core::result::stack::item& item, code<13>, std::string const& uri) const
{
    item.set_argument("uri", uri);
}

void cryptography_result_category::create(core::result::stack::item& item, code<14>, std::string const& uri) const
{
    item.set_argument("uri", uri);
}

void cryptography_result_category::create(core::result::stack::item& item, code<15>, std::string const& element) const
{
    item.set_argument("element", element);
}

void cryptography_result_category::create(core::result::stack::item& item, code<16>,
                                          std::string const& description) const
{
    item.set_argument("description", description);
}

}  // namespace v3
}  // namespace velk::cryptography
