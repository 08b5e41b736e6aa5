#include "authority_records.hpp"

#include "fiscal_answer.hpp"
#include "status_codes.hpp"

#include <cstdio>

namespace velk::tools::sefaz_sim {

namespace {

bool overlap(authority_records::number_range const& one, authority_records::number_range const& other)
{
    return one.issuer == other.issuer && one.model == other.model && one.series == other.series &&
           one.first <= other.last && other.first <= one.last;
}

// "[nProt:...][dhAut:...]", the details the authorities append to a
// duplicate's text.
std::string earlier_authorization(document_protocol const& earlier)
{
    return "[nProt:" + earlier.number + "][dhAut:" + earlier.received_at + "]";
}

}  // namespace

authority_records::place authority_records::place_of(std::string const& key)
{
    return {key.substr(6, 14), key.substr(20, 2), key.substr(22, 3), std::stoul(key.substr(25, 9))};
}

bool authority_records::is_disabled(place const& number) const
{
    number_range const single{std::get<0>(number), std::get<1>(number), std::get<2>(number), std::get<3>(number),
                              std::get<3>(number)};
    for (number_range const& range : disabled_) {
        if (overlap(range, single)) {
            return true;
        }
    }
    return false;
}

void authority_records::authorize(document_protocol& protocol)
{
    std::lock_guard<std::mutex> const lock(mutex_);
    place const number = place_of(protocol.key);
    if (is_disabled(number)) {
        protocol.status = 206;
        protocol.reason = status_codes::reason(206);
        return;
    }
    if (auto const earlier = authorized_.find(protocol.key); earlier != authorized_.end()) {
        protocol.status = 204;
        protocol.reason = status_codes::reason(204) + " " + earlier_authorization(earlier->second);
        return;
    }
    if (auto const other = keys_by_place_.find(number); other != keys_by_place_.end()) {
        protocol.status = 539;
        protocol.reason = status_codes::reason(539) + " [chNFe:" + other->second + "]" +
                          earlier_authorization(authorized_.at(other->second));
        return;
    }
    protocol.status = 100;
    protocol.reason = status_codes::reason(100);
    protocol.number = next_protocol(protocol.key.substr(0, 2));
    authorized_.emplace(protocol.key, protocol);
    keys_by_place_.emplace(number, protocol.key);
}

authority_records::note_situation authority_records::situation(std::string const& key) const
{
    std::lock_guard<std::mutex> const lock(mutex_);
    note_situation held;
    if (auto const found = authorized_.find(key); found != authorized_.end()) {
        held.authorization = found->second;
    }
    held.cancelled = cancelled_.count(key) != 0;
    if (auto const found = proc_events_.find(key); found != proc_events_.end()) {
        held.events = found->second;
    }
    return held;
}

void authority_records::register_event(event_protocol& event, event_rule rule, std::string const& note_protocol)
{
    std::lock_guard<std::mutex> const lock(mutex_);
    auto const decide = [&event](int status) {
        event.status = status;
        event.reason = status_codes::reason(status);
    };
    auto const note = authorized_.find(event.key);
    bool const held = note != authorized_.end();
    auto const registered = std::make_tuple(event.key, event.type, event.sequence);
    if (rule != event_rule::may_precede && !held) {
        return decide(217);
    }
    if (events_.count(registered) != 0) {
        return decide(573);
    }
    if (rule != event_rule::may_precede && cancelled_.count(event.key) != 0) {
        return decide(580);
    }
    if (rule == event_rule::cancels && note_protocol != note->second.number) {
        return decide(222);
    }
    decide(held ? 135 : 136);
    event.number = next_protocol(event.orgao);
    events_.insert(registered);
    if (rule == event_rule::cancels) {
        cancelled_.insert(event.key);
    }
}

void authority_records::keep_event(std::string const& key, std::string proc_event)
{
    std::lock_guard<std::mutex> const lock(mutex_);
    proc_events_[key].push_back(std::move(proc_event));
}

int authority_records::disable(number_range const& range, std::string const& uf, std::string& protocol_number)
{
    std::lock_guard<std::mutex> const lock(mutex_);
    for (number_range const& earlier : disabled_) {
        if (overlap(earlier, range)) {
            return 563;
        }
    }
    for (auto const& [number, key] : keys_by_place_) {
        auto const& [issuer, model, series, value] = number;
        if (overlap(range, {issuer, model, series, value, value})) {
            return 241;
        }
    }
    disabled_.push_back(range);
    protocol_number = next_protocol(uf);
    return 102;
}

std::string authority_records::keep_batch(std::string const& uf, std::vector<document_protocol> protocols,
                                          int processing_polls)
{
    std::lock_guard<std::mutex> const lock(mutex_);
    // 15 digits: cUF, 1, twelve of the sequence.
    char receipt[32];
    std::snprintf(receipt, sizeof receipt, "%.2s1%012llu", uf.c_str(), ++receipts_made_);
    batches_[receipt] = batch{processing_polls, std::move(protocols)};
    return receipt;
}

authority_records::batch_state authority_records::poll(std::string const& receipt)
{
    std::lock_guard<std::mutex> const lock(mutex_);
    batch_state state;
    auto const found = batches_.find(receipt);
    if (found == batches_.end()) {
        return state;
    }
    state.found = true;
    if (found->second.polls_left > 0) {
        --found->second.polls_left;
        state.processing = true;
    } else {
        state.protocols = found->second.protocols;
    }
    return state;
}

std::string authority_records::next_protocol(std::string const& uf)
{
    char number[32];
    std::snprintf(number, sizeof number, "1%.2s%.2s%010llu", uf.c_str(), fiscal_answer::now().substr(2, 2).c_str(),
                  ++protocols_made_);
    return number;
}

}  // namespace velk::tools::sefaz_sim
