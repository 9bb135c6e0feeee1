// Tells whether the kernel announced a change of links or addresses, without asking it again.
#pragma once

// Listens to the routing socket's link and address groups. Checking costs one system call that
// returns at once, where listing every interface and address would cost hundreds of them.
class NetlinkWatch {
public:
    NetlinkWatch();
    ~NetlinkWatch();
    NetlinkWatch(const NetlinkWatch&) = delete;
    NetlinkWatch& operator=(const NetlinkWatch&) = delete;

    // True when a link or an address came, went or changed state since the previous call, and
    // whenever that cannot be known (no socket, or messages were lost). Never blocks.
    bool changed();

private:
    int fd_ = -1;
};
