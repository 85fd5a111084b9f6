#pragma once

#include <QHostAddress>

#include <cstddef>
#include <span>
#include <string_view>

// What a connection needs of the system beyond what the toolkit offers.

namespace phial::master::systemsocket
{

/// Makes calls return at once, sends small answers without delay, and lets the system find out about a
/// computer that has vanished within some two minutes.
void prepare(qintptr descriptor);

QHostAddress peerAddress(qintptr descriptor);
QHostAddress ownAddress(qintptr descriptor);

struct Moved {
    std::size_t bytes = 0;
    /// Nothing more will move that way.
    bool isOver = false;
};
Moved receive(qintptr descriptor, std::span<char> piece);
Moved send(qintptr descriptor, std::string_view bytes);
void close(qintptr descriptor);

} // namespace phial::master::systemsocket
