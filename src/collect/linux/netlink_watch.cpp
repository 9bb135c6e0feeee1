// Link and address announcements from the kernel's routing socket.
#include "collect/linux/netlink_watch.h"

#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>

NetlinkWatch::NetlinkWatch()
{
    fd_ = ::socket(AF_NETLINK, SOCK_RAW | SOCK_NONBLOCK | SOCK_CLOEXEC, NETLINK_ROUTE);
    if (fd_ < 0)
        return;
    sockaddr_nl address{};
    address.nl_family = AF_NETLINK;
    address.nl_groups = RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR;
    if (::bind(fd_, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) {
        ::close(fd_);
        fd_ = -1;
    }
}

NetlinkWatch::~NetlinkWatch()
{
    if (fd_ >= 0)
        ::close(fd_);
}

bool NetlinkWatch::changed()
{
    if (fd_ < 0)
        return true;
    bool any = false;
    std::array<char, 8192> buffer{};
    for (;;) {
        const ssize_t got = ::recv(fd_, buffer.data(), buffer.size(), MSG_DONTWAIT);
        if (got > 0) {
            any = true;
            continue;
        }
        // ENOBUFS: the kernel dropped announcements, so anything may have changed.
        if (got < 0 && errno == ENOBUFS) {
            any = true;
            continue;
        }
        if (got < 0 && errno == EINTR)
            continue;
        return any;
    }
}
