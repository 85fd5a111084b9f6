#include "qt/base/InterComMessage.h"

#include "qt/base/QtText.h"

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>
#include <QtEndian>

#include <string>

namespace phial::qt
{

namespace
{

constexpr QByteArrayView Mark = "QVIC";
constexpr qsizetype NumberBytes = 4;
constexpr qsizetype HeadBytes = Mark.size() + NumberBytes;

QByteArray bigEndian(std::uint32_t number)
{
    QByteArray bytes(NumberBytes, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

std::uint32_t numberAt(const QByteArray& bytes, qsizetype place)
{
    return qFromBigEndian<std::uint32_t>(bytes.constData() + place);
}

} // namespace

QByteArray packInterCom(const InterComMessage& message)
{
    const std::string text = toUtf8(message.text);
    QByteArray bytes;
    bytes += Mark;
    bytes += bigEndian(static_cast<std::uint32_t>(text.size() + NumberBytes));
    bytes += bigEndian(static_cast<std::uint32_t>(message.number));
    bytes += QByteArrayView(text.data(), static_cast<qsizetype>(text.size()));
    return bytes;
}

InterComState takeInterCom(QByteArray& bytes, InterComMessage& rMessage)
{
    if (!Mark.startsWith(QByteArrayView(bytes).first(qMin(bytes.size(), Mark.size())))) {
        return InterComState::Malformed;
    }
    if (bytes.size() < HeadBytes) {
        return InterComState::Incomplete;
    }
    const std::uint32_t length = numberAt(bytes, Mark.size());
    if (length < NumberBytes || length > MaxInterComBytes) {
        return InterComState::Malformed;
    }
    if (bytes.size() < HeadBytes + static_cast<qsizetype>(length)) {
        return InterComState::Incomplete;
    }
    const QByteArray text = bytes.mid(HeadBytes + NumberBytes, static_cast<qsizetype>(length) - NumberBytes);
    rMessage.number = static_cast<std::int32_t>(numberAt(bytes, HeadBytes));
    rMessage.text = fromUtf8(text.toStdString());
    bytes.remove(0, HeadBytes + static_cast<qsizetype>(length));
    return InterComState::Complete;
}

// The home folder tells users apart; the hash keeps any program name within what a socket's name may hold.
QString interComAddress(StringView program)
{
    const QByteArray who = QDir::homePath().toUtf8() + '\n' + toQt(lowerCase(program)).toUtf8();
    const QByteArray digest = QCryptographicHash::hash(who, QCryptographicHash::Sha256).toHex().left(24);
    const QString name = QStringLiteral("qv-phial-") + QLatin1String(digest);
#ifdef Q_OS_WIN
    return name;
#else
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return (folder.isEmpty() ? QDir::tempPath() : folder) + u'/' + name;
#endif
}

} // namespace phial::qt
