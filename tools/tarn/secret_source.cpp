#include "secret_source.hpp"

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace velk::tools::tarn {

std::optional<std::string> secret_source::read(option_table const& options, std::string& error) const
{
    if (auto const file = options.value(file_option_)) {
        std::ifstream in(*file, std::ios::binary);
        if (!in) {
            error = "não foi possível ler o arquivo de --" + std::string(file_option_) + ": " + *file;
            return std::nullopt;
        }
        std::ostringstream contents;
        contents << in.rdbuf();
        std::string secret = contents.str();
        if (!secret.empty() && secret.back() == '\n') {
            secret.pop_back();
            if (!secret.empty() && secret.back() == '\r') {
                secret.pop_back();
            }
        }
        return secret;
    }
    if (char const* const value = std::getenv(variable_)) {
        return std::string(value);
    }
    return std::nullopt;
}

}  // namespace velk::tools::tarn
