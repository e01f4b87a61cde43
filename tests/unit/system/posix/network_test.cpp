#include "system/network.hpp"

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <unistd.h>

namespace kova::system {

namespace {

class ASocket : public testing::Test {
protected:
    ASocket() { ::socketpair(AF_UNIX, SOCK_STREAM, 0, ends_); }
    ~ASocket() override
    {
        ::close(ends_[0]);
        ::close(ends_[1]);
    }

    int ends_[2] = {-1, -1};
};

} // namespace

TEST_F(ASocket, CanBeReadOnceTheOtherEndHasWritten)
{
    EXPECT_FALSE(AwaitSocket(ends_[0], SocketEvent::CanBeRead, 0));
    EXPECT_TRUE(AwaitSocket(ends_[0], SocketEvent::CanBeWritten, 0));
    ASSERT_EQ(::write(ends_[1], "x", 1), 1);
    EXPECT_TRUE(AwaitSocket(ends_[0], SocketEvent::CanBeRead, 0));
}

TEST(ANetworkName, IsKnownWhereItLeadsToAComputer)
{
    EXPECT_TRUE(IsKnownHost("localhost"));
    EXPECT_TRUE(IsKnownHost("127.0.0.1"));
    EXPECT_FALSE(IsKnownHost("nenhum servidor"));
}

} // namespace kova::system
