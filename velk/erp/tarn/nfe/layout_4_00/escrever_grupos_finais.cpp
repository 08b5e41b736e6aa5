// The optional closing groups, for now: their records are empty and write
// nothing, held or not. The closing groups replace this file with their
// writers.

#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool escrever(xml::element&, std::string const&, grupo::cobr const&, core::result::stack&)
{
    return true;
}

bool escrever(xml::element&, std::string const&, grupo::infIntermed const&, core::result::stack&)
{
    return true;
}

bool escrever(xml::element&, std::string const&, grupo::infAdic const&, core::result::stack&)
{
    return true;
}

bool escrever(xml::element&, std::string const&, grupo::exporta const&, core::result::stack&)
{
    return true;
}

bool escrever(xml::element&, std::string const&, grupo::compra const&, core::result::stack&)
{
    return true;
}

bool escrever(xml::element&, std::string const&, grupo::cana const&, core::result::stack&)
{
    return true;
}

bool escrever(xml::element&, std::string const&, grupo::infRespTec const&, core::result::stack&)
{
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00
