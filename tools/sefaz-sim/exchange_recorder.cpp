#include "exchange_recorder.hpp"

#include <httplib.h>

#include <cstdio>
#include <fstream>

namespace velk::tools::sefaz_sim {

namespace {

void write_file(std::filesystem::path const& path, std::string const& contents)
{
    // Written under a temporary name and renamed, so a reader never sees half a file.
    std::filesystem::path const partial = path.string() + ".part";
    {
        std::ofstream out(partial, std::ios::binary);
        out << contents;
    }
    std::filesystem::rename(partial, path);
}

}  // namespace

exchange_recorder::exchange_recorder(std::filesystem::path folder) : folder_(std::move(folder))
{
    if (!folder_.empty()) {
        std::filesystem::create_directories(folder_);
    }
}

void exchange_recorder::record(httplib::Request const& request)
{
    if (folder_.empty()) {
        return;
    }
    char stem[16];
    std::snprintf(stem, sizeof stem, "%04u", ++count_);
    std::string headers = request.method + " " + request.target + " " + request.version + "\n";
    for (auto const& [name, value] : request.headers) {
        headers += name + ": " + value + "\n";
    }
    write_file(folder_ / (std::string(stem) + ".headers"), headers);
    write_file(folder_ / (std::string(stem) + ".xml"), request.body);
}

}  // namespace velk::tools::sefaz_sim
