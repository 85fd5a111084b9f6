#pragma once

#include <QByteArray>
#include <QImage>
#include <QVector>

#include <vector>

namespace bench
{

/// An animated GIF of pictures of the same size, 50 milliseconds each, over and over. It has 64 colours and
/// see-through pixels, and is not compressed: codes keep a length of 8 bits, since the table of codes is
/// cleared before it grows.
class Film
{
public:
    explicit Film(const std::vector<QImage>& frames)
    {
        const QImage& first = frames.front();
        bytes_.append("GIF89a");
        number(first.width());
        number(first.height());
        bytes_.append("\xF6\0\0", 3); // 128 colours for all frames
        for (const QRgb colour : colours()) {
            bytes_.append(static_cast<char>(qRed(colour)));
            bytes_.append(static_cast<char>(qGreen(colour)));
            bytes_.append(static_cast<char>(qBlue(colour)));
        }
        bytes_.append("\x21\xFF\x0BNETSCAPE2.0\x03\x01\0\0\0", 19);
        for (const QImage& frame : frames) {
            add(frame);
        }
        bytes_.append(';');
    }

    const QByteArray& bytes() const { return bytes_; }

private:
    static constexpr int SeeThrough = 127;
    static constexpr char ClearCode = '\x80';
    static constexpr char EndCode = '\x81';
    static constexpr int FrameTime = 5; // hundredths of a second

    /// Four steps of each colour.
    static QVector<QRgb> colours()
    {
        QVector<QRgb> all(SeeThrough + 1, qRgb(0, 0, 0));
        for (int at = 0; at < 64; ++at) {
            all[at] = qRgb(at / 16 * 85, at / 4 % 4 * 85, at % 4 * 85);
        }
        return all;
    }
    static char indexOf(QRgb pixel)
    {
        const auto step = [](int value) { return (value + 42) / 85; };
        return static_cast<char>(qAlpha(pixel) < 128
                                     ? SeeThrough
                                     : step(qRed(pixel)) * 16 + step(qGreen(pixel)) * 4 + step(qBlue(pixel)));
    }

    void number(int value)
    {
        bytes_.append(static_cast<char>(value % 256));
        bytes_.append(static_cast<char>(value / 256));
    }

    void add(const QImage& frame)
    {
        bytes_.append("\x21\xF9\x04\x09", 4); // back to the ground before the next one
        number(FrameTime);
        bytes_.append(static_cast<char>(SeeThrough));
        bytes_.append("\0\x2C\0\0\0\0", 6);
        number(frame.width());
        number(frame.height());
        bytes_.append("\0\x07", 2);
        const QByteArray codes = codesOf(frame);
        constexpr qsizetype LongestBlock = 255;
        for (qsizetype at = 0; at < codes.size(); at += LongestBlock) {
            const QByteArray block = codes.mid(at, LongestBlock);
            bytes_.append(static_cast<char>(block.size()));
            bytes_.append(block);
        }
        bytes_.append('\0');
    }

    static QByteArray codesOf(const QImage& frame)
    {
        constexpr int CodesToGrowth = 120;
        QByteArray codes;
        for (int at = 0; at < frame.width() * frame.height(); ++at) {
            if (at % CodesToGrowth == 0) {
                codes.append(ClearCode);
            }
            codes.append(indexOf(frame.pixel(at % frame.width(), at / frame.width())));
        }
        codes.append(EndCode);
        return codes;
    }

    QByteArray bytes_;
};

} // namespace bench
