#include "qt/base/MasterSearch.h"

#include "qt/base/NetAddress.h"
#include "qt/base/QtText.h"
#include "server/Announcement.h"

#include <QEventLoop>
#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QTimer>
#include <QUdpSocket>

#include <algorithm>

namespace phial::qt
{

namespace
{

constexpr std::size_t MostMasters = 64;

/// Where masters may listen: this computer, and everybody on each of its networks.
QList<QHostAddress> placesToAsk()
{
    QList<QHostAddress> places{QHostAddress(QHostAddress::LocalHost)};
    for (const QNetworkInterface& network : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry& entry : network.addressEntries()) {
            if (!entry.broadcast().isNull() && !places.contains(entry.broadcast())) {
                places += entry.broadcast();
            }
        }
    }
    return places;
}

void note(const QNetworkDatagram& datagram, std::vector<FoundMaster>& found)
{
    const QByteArray bytes = datagram.data();
    const auto answer = decodeAnnouncement({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    const String address = addressText(datagram.senderAddress());
    const bool isKnown =
        std::ranges::any_of(found, [&](const FoundMaster& master) { return master.address == address; });
    if (answer && !answer->isQuestion() && !isKnown && found.size() < MostMasters) {
        found.push_back({address, answer->settings});
    }
}

} // namespace

std::vector<FoundMaster> findMasters(std::int32_t udpPort, std::chrono::milliseconds patience)
{
    std::vector<FoundMaster> found;
    QUdpSocket socket;
    if (!socket.bind(QHostAddress(QHostAddress::AnyIPv4))) {
        return found;
    }
    QObject::connect(&socket, &QUdpSocket::readyRead, &socket, [&] {
        while (socket.hasPendingDatagrams()) {
            note(socket.receiveDatagram(static_cast<qint64>(MaxAnnouncementBytes) + 1), found);
        }
    });
    const std::string question = encodeAnnouncement({});
    for (const QHostAddress& place : placesToAsk()) {
        socket.writeDatagram(question.data(), static_cast<qint64>(question.size()), place,
                             static_cast<quint16>(udpPort));
    }
    QEventLoop loop;
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    loop.exec();
    std::stable_partition(found.begin(), found.end(), [](const FoundMaster& master) {
        return !QHostAddress(toQt(master.address)).isLoopback();
    });
    return found;
}

} // namespace phial::qt
