#pragma once

#include "document_protocol.hpp"
#include "event_protocol.hpp"
#include "event_type.hpp"

#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace velk::tools::sefaz_sim {

// What the authority remembers for the life of the process: the documents it
// authorized, the events it registered and the notes they cancelled, the
// number ranges it disabled, the batches waiting for their
// receipt to be queried, and the sequences of its protocol and receipt
// numbers. Shared by the server's threads.
class authority_records {
public:
    // A place in an issuer's numbering: CNPJ (14 digits, a CPF zero-filled),
    // model, series (3 digits) and the numbers first to last.
    struct number_range {
        std::string issuer;
        std::string model;
        std::string series;
        unsigned long first = 0;
        unsigned long last = 0;
    };

    // The rules that depend on what came before, for a document that passed
    // every other check: a disabled number (206), a key authorized before
    // (204), another key for the same number (539); else 100 with a new
    // protocol number, and the document is remembered. Fills status, reason
    // and number of `protocol`.
    void authorize(document_protocol& protocol);
    // What the authority holds of a key: the protocol of its authorization,
    // none for a key it never authorized; whether an event cancelled it; the
    // procEventoNFe of each event registered about it, in order.
    struct note_situation {
        std::optional<document_protocol> authorization;
        bool cancelled = false;
        std::vector<std::string> events;
    };
    note_situation situation(std::string const& key) const;

    // The rules of an event that depend on what came before, for one that
    // passed every other check, in the authority's order: a note to cancel or
    // correct that it never authorized (217), the same key, type and sequence
    // registered before (573), a note cancelled before (580), a cancellation
    // naming another protocol number than the note's (222, `note_protocol`
    // being the number it names). Else 135, or 136 for an event the rule lets
    // precede its note and whose note the authority does not hold, with a new
    // protocol number. Fills status, reason and number of `event`.
    void register_event(event_protocol& event, event_rule rule, std::string const& note_protocol);
    // Keeps the procEventoNFe of a registered event for the query by key.
    void keep_event(std::string const& key, std::string proc_event);

    // A range that meets one disabled before (563) or holds an authorized
    // number (241); else 102 and `protocol_number` gets a new number.
    int disable(number_range const& range, std::string const& uf, std::string& protocol_number);

    // Keeps the outcome of an asynchronous batch; returns its receipt.
    std::string keep_batch(std::string const& uf, std::vector<document_protocol> protocols, int processing_polls);

    struct batch_state {
        bool found = false;
        bool processing = false;  // still in processing for this query
        std::vector<document_protocol> protocols;
    };
    // One query of a receipt: each of the first processing_polls queries finds
    // the batch in processing, later ones find its protocols.
    batch_state poll(std::string const& receipt);

private:
    struct batch {
        int polls_left = 0;
        std::vector<document_protocol> protocols;
    };
    using place = std::tuple<std::string, std::string, std::string, unsigned long>;

    static place place_of(std::string const& key);
    bool is_disabled(place const& number) const;
    // 15 digits: 1, cUF, the year, ten of the sequence.
    std::string next_protocol(std::string const& uf);

    mutable std::mutex mutex_;
    std::map<std::string, document_protocol> authorized_;
    std::map<place, std::string> keys_by_place_;
    // Key, tpEvento and nSeqEvento of each event registered.
    std::set<std::tuple<std::string, std::string, std::string>> events_;
    std::set<std::string> cancelled_;
    std::map<std::string, std::vector<std::string>> proc_events_;
    std::vector<number_range> disabled_;
    std::map<std::string, batch> batches_;
    unsigned long long protocols_made_ = 0;
    unsigned long long receipts_made_ = 0;
};

}  // namespace velk::tools::sefaz_sim
