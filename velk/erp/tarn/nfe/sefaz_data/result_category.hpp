#pragma once

#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/result/table_category.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data {

// Failures of reading and writing the SEFAZ messages ("erp-tarn-sefaz-data").
class result_category final : public core::result::table_category {
public:
    template <int N>
    using code = core::result::code<result_category, N>;
    using item = core::result::stack::item;

    static result_category const& instance();

    void create(item&, code<1>, std::string const& element_name) const;
    void create(item&, code<2>, std::string const& element_name, std::string const& element_value) const;
    void create(item&, code<2>, std::string const& element_name) const;
    void create(item&, code<3>, std::string const& attribute_name, std::string const& attribute_value) const;
    void create(item&, code<3>, std::string const& attribute_name) const;
    void create(item&, code<4>, std::string const& attribute_name) const;
    void create(item&, code<5>) const {}
    void create(item&, code<6>) const {}
    void create(item&, code<7>) const {}
    void create(item&, code<8>, std::string const& expected, std::string const& received) const;
    void create(item&, code<9>, std::string const& request_name, std::string const& field_name) const;
    void create(item&, code<10>, std::string const& element_name) const;
    void create(item&, code<11>) const {}

private:
    result_category();
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data
