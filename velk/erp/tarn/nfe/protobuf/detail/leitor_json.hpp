#pragma once

// The reading of a note's JSON text straight into its message, in one pass
// and without an intermediate tree: the text is walked once and written in
// the message's binary form, which the message's own parser then reads. The
// result is the one protobuf's own JSON mapping gives for the same text (its
// default options), leniencies of its reader included: single-quoted
// strings, unquoted keys, a comma before a closing bracket, nested arrays
// flattened into a repeated field, raw control characters in strings and an
// unknown escape standing for the character itself. What it refuses is
// refused here too.

#include <google/protobuf/descriptor.h>
#include <google/protobuf/message.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::protobuf::detail {

class leitor_json {
public:
    // The field names of every message reachable from `raiz` are indexed
    // here, once; reading needs no lock and no further allocation for names.
    explicit leitor_json(google::protobuf::Descriptor const& raiz);
    leitor_json(leitor_json const&) = delete;
    leitor_json& operator=(leitor_json const&) = delete;

    // Fills `mensagem` (of the root's type) from `texto`; what it held
    // before is dropped. On refusal, false and `motivo` says what and at
    // which byte; `mensagem` is then left as it was.
    bool ler(std::string_view texto, google::protobuf::Message& mensagem, std::string& motivo) const;

    // The objects nested deeper than this are refused, as protobuf does.
    static constexpr int profundidade_maxima = 100;

    struct tipo;
    template <class T>
    class por_nome;

    // A field with what reading it asks of its descriptor, asked once: the
    // descriptor's own answers go through a lock-free but costly once-check
    // on every call.
    struct campo {
        google::protobuf::FieldDescriptor const* descritor = nullptr;
        // The name of the .proto file, which the keys of a note usually are;
        // empty when the lookup by that name finds another field (one whose
        // lowerCamelCase form it is), so that no guess is made with it.
        std::string_view nome;
        // The key as a note's text writes it, quoted and followed by its
        // colon, in two blocks of 16 bytes, and the mask of its
        // `tamanho_chave` bytes: the text at a key compared with it at once.
        // A mask of zero when the name is not `nome` or too long for it.
        alignas(16) std::array<char, 32> chave{};
        std::uint32_t mascara_chave = 0;
        unsigned char tamanho_chave = 0;
        // The field that follows this one in the message's binary form (by
        // number), as the keys of a note usually follow each other; null
        // for the last.
        campo const* seguinte = nullptr;
        // Where the guesses go on after this field's value: `seguinte`, past
        // the other members of its oneof, which a note does not set beside it.
        campo const* depois = nullptr;
        google::protobuf::FieldDescriptor::CppType tipo_cpp{};
        google::protobuf::FieldDescriptor::Type tipo_campo{};
        // The field's tag in the binary form, as a varint of
        // `tamanho_etiqueta` bytes; for a group, the tag that ends it too.
        std::array<char, 5> etiqueta{};
        std::array<char, 5> fim_do_grupo{};
        unsigned char tamanho_etiqueta = 0;
        bool grupo = false;
        bool repetido = false;
        bool bytes = false;
        // Neither repeated, nor in a oneof, nor a message.
        bool escalar_simples = false;
        // The index of its oneof; -1 for none.
        int oneof = -1;
        // The type of a message field; null for a scalar.
        tipo const* mensagem = nullptr;
        google::protobuf::EnumDescriptor const* enumeracao = nullptr;
        // The values of the enumeration by name: protobuf's own search
        // wants a std::string.
        por_nome<google::protobuf::EnumValueDescriptor> const* valores = nullptr;
    };

    // The fields of a message, or the values of an enumeration, by name.
    // Every key of a note is looked up here, so the table is open
    // addressing over a power-of-two size: no node to follow and no
    // division.
    template <class T>
    class por_nome {
    public:
        // The first one given a name keeps it.
        void incluir(std::string_view nome, T const* lido);
        T const* achar(std::string_view nome) const;

    private:
        static std::size_t espalhar(std::string_view nome);
        void crescer();

        std::vector<std::pair<std::string_view, T const*>> casas_;
        std::size_t ocupadas_ = 0;
    };
    using campos_por_nome = por_nome<campo>;
    using valores_por_nome = por_nome<google::protobuf::EnumValueDescriptor>;

    struct tipo {
        // The fields in the order of the descriptor.
        std::vector<campo> lista;
        google::protobuf::Descriptor const* descritor = nullptr;
        // The field of the lowest number: where the guesses of an object's
        // keys start (see `seguinte`).
        campo const* primeiro = nullptr;
        // By the name of the .proto file and by its lowerCamelCase form.
        campos_por_nome campos;
        // The bytes kept for the length of a message of the type, before it
        // is known.
        std::size_t reserva = 2;
        // The most bytes a message of the type takes with each field once;
        // huge when there is no bound.
        std::size_t limite = ~std::size_t{0} / 2;
        // google.protobuf's wrappers: written as their bare value as well.
        bool embrulho = false;
        // A well-known type whose JSON form this reader does not know.
        bool desconhecido = false;
    };

private:
    tipo& indexar(google::protobuf::Descriptor const& descritor);

    std::unordered_map<google::protobuf::Descriptor const*, tipo> tipos_;
    // The map's nodes stay where they are as it grows.
    std::unordered_map<google::protobuf::EnumDescriptor const*, valores_por_nome> enumeracoes_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf::detail
