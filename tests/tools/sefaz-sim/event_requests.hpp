#pragma once

// Events put to the authority of the tests: each made by the library from
// the values given and signed by the test taxpayer, as text, and the batch
// that carries them.

#include <string>
#include <vector>

namespace velk::test {

// A cancellation of the note of `key` naming its protocol number; by
// substitution when a substitute key is given.
std::string cancellation(std::string const& key, std::string const& protocol, std::string const& substitute = "");
// The correction letter of that sequence number.
std::string correction(std::string const& key, unsigned sequence);
// An EPEC of the note of `key`, to a company of Rio de Janeiro.
std::string epec(std::string const& key);
// The recipient's manifestation of a type, "210200" to "210240".
std::string manifestation(std::string const& key, std::string const& type);

// envEvento 1.00 with the events, idLote 1.
std::string event_batch(std::vector<std::string> const& events);

// The event's text changed and signed again, so that only the change is
// judged.
std::string event_changed(std::string const& event, std::string const& from, std::string const& to);

}  // namespace velk::test
