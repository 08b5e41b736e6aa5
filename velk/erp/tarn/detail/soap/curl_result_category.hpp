#pragma once

#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/result/table_category.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::detail::soap {

// The one place where libcurl's result numbers are known: each becomes a code
// of this category with a Portuguese message; libcurl's own text travels in the
// argument "curl_message" (and, for code 24, the number in "curl_code").
class curl_result_category final : public core::result::table_category {
public:
    static curl_result_category const& instance();

    // Every code takes no detail at creation; report_curl_failure adds them.
    template <int N>
    void create(core::result::stack::item&, core::result::code<curl_result_category, N>) const
    {
        static_assert(N >= 1 && N <= 24, "curl_result_category has codes 1 to 24");
    }

    // The code of a libcurl result: 1 to 23 by the table, 24 for any other.
    static int code_of(int curl_result);

private:
    curl_result_category();
};

// Fresh report of a failed transfer on the caller's stack: the code of the
// result, "curl_code" for code 24, and "curl_message" from the error buffer or,
// when it is empty, from curl_easy_strerror.
void report_curl_failure(int curl_result, char const* error_buffer, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::detail::soap
