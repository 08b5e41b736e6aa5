#include "tool_data.hpp"

#include "command_error.hpp"
#include "tool_paths.hpp"

namespace velk::tools::tarn {

namespace {

template <class Table>
Table const& loaded(std::optional<Table>& table, std::filesystem::path const& file)
{
    if (!table) {
        Table read;
        std::string error;
        if (!read.load(file, error)) {
            throw command_error::usage("dados do tarn", error);
        }
        table = std::move(read);
    }
    return *table;
}

}  // namespace

tool_data::tool_data() : folder_(tool_paths::data_folder()) {}

address_table const& tool_data::addresses()
{
    return loaded(addresses_, folder_ / "sefaz-webservices.json");
}

qrcode_pages const& tool_data::pages()
{
    return loaded(pages_, folder_ / "nfce-qrcode.json");
}

std::filesystem::path tool_data::schemas() const
{
    std::error_code ignored;
    std::filesystem::path const folder = folder_ / "schemas";
    return !folder_.empty() && std::filesystem::is_directory(folder, ignored) ? folder : std::filesystem::path();
}

}  // namespace velk::tools::tarn
