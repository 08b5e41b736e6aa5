#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace velk::tools::tarn {

// An enveloped signature a message holds: the element that carries it, by
// its path of child names from the root ({} for the root itself), and the
// signed child of that element.
struct signed_part {
    std::vector<std::string_view> path;
    std::string_view signed_name;
    std::string_view label;
};

// Where a message keeps the access key it is about.
enum class key_place {
    none,
    document,  // NFe/infNFe@Id, under `document_path`
    event,     // evento/infEvento/chNFe, under `event_path`
};

// A message tarn validar knows, by the local name of its root: what it is,
// which official schema validates it, the signatures it holds, the key.
struct message_kind {
    std::string_view root;
    std::string_view description;
    // The schema's name without "_v<versao>.xsd"; empty: chosen by the
    // event's type (evento, envEvento, procEventoNFe).
    std::string_view schema;
    std::vector<signed_part> signatures;
    key_place key = key_place::none;
    // Path of NFe (document) or evento (event) from the root.
    std::vector<std::string_view> inner_path;

    // Null for a root no entry knows.
    static message_kind const* find(std::string_view root);
    // The schema of an event message by the event's type: "procEventoCancNFe"
    // for a cancellation inside procEventoNFe. Empty for an evento alone of a
    // type that has no schema of its own.
    static std::string event_schema(std::string_view root, std::string_view tipo_evento);
};

}  // namespace velk::tools::tarn
