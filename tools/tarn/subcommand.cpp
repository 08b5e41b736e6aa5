#include "subcommand.hpp"

namespace velk::tools::tarn {

namespace {

bool is_scalar(json_value const& value)
{
    return value.get_kind() != json_value::kind::array && value.get_kind() != json_value::kind::object;
}

void print_value(std::string const& label, json_value const& value, int depth, std::FILE* out)
{
    std::string const indent(static_cast<std::size_t>(depth) * 2, ' ');
    if (is_scalar(value)) {
        std::fprintf(out, "%s%s: %s\n", indent.c_str(), label.c_str(),
                     value.get_kind() == json_value::kind::null ? "-" : value.scalar().c_str());
        return;
    }
    if (value.get_kind() == json_value::kind::object) {
        if (value.members().empty()) {
            return;
        }
        std::fprintf(out, "%s%s:\n", indent.c_str(), label.c_str());
        for (auto const& [name, member] : value.members()) {
            print_value(name, member, depth + 1, out);
        }
        return;
    }
    for (json_value const& item : value.items()) {
        if (is_scalar(item)) {
            std::fprintf(out, "%s%s: %s\n", indent.c_str(), label.c_str(), item.scalar().c_str());
        } else {
            print_value(label, item, depth, out);
        }
    }
}

}  // namespace

void subcommand::print_text(json_value const& report, std::FILE* out) const
{
    print_report_text(report, out);
}

void print_outcome(subcommand const& command, json_value const& report, bool json, std::FILE* out)
{
    if (json) {
        std::fprintf(out, "%s\n", report.to_json().c_str());
    } else {
        command.print_text(report, out);
    }
    std::fflush(out);
}

void print_report_text(json_value const& report, std::FILE* out)
{
    for (auto const& [name, member] : report.members()) {
        print_value(name, member, 0, out);
    }
}

}  // namespace velk::tools::tarn
