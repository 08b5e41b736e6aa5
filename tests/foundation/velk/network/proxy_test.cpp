#include <velk/network/proxy.hpp>

#include <gtest/gtest.h>

TEST(proxy, keeps_what_it_was_given)
{
    velk::network::proxy const value("proxy.local", 3128, "usuario", "senha");
    EXPECT_EQ(value.get_host(), "proxy.local");
    EXPECT_EQ(value.get_port(), 3128u);
    EXPECT_EQ(value.get_user(), "usuario");
    EXPECT_EQ(value.get_password(), "senha");
    velk::network::proxy const empty;
    EXPECT_EQ(empty.get_port(), 0u);
    EXPECT_TRUE(empty.get_user().empty());
}
