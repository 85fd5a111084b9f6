// The examples of docs/protocol.md are what the library does.

#include "core/CoreValuePacker.h"
#include "server/Announcement.h"
#include "server/Frame.h"
#include "server/WireText.h"
#include "server/cls_AppServerConfig.h"
#include "support/AppSession.h"
#include "support/Places.h"

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace phial
{

namespace
{

/// The page's lines that stand indented, without the indent.
std::vector<std::string> examples()
{
    std::ifstream page(test::sourceFolder() / "docs" / "protocol.md");
    std::vector<std::string> found;
    for (std::string line; std::getline(page, line);) {
        if (line.starts_with("    ")) {
            found.push_back(line.substr(4));
        }
    }
    return found;
}

/// The one example that begins so.
std::string exampleOf(std::string_view start)
{
    for (const std::string& example : examples()) {
        if (example.starts_with(start)) {
            return example;
        }
    }
    ADD_FAILURE() << "no example begins with " << start;
    return {};
}

std::string bytesOf(const std::string& hexadecimal)
{
    std::istringstream digits(hexadecimal);
    std::string bytes;
    for (std::string byte; digits >> byte;) {
        bytes += static_cast<char>(std::stoi(byte, nullptr, 16));
    }
    return bytes;
}

class ProtocolPage : public test::AppSession
{
};

TEST_F(ProtocolPage, ShowsTheFrameOfARequest)
{
    const std::string bytes = bytesOf(exampleOf("51 56 46 ") + " " + exampleOf("53 45 "));
    EXPECT_EQ(bytes, encodeFrame({FrameKind::Request, {0x0102030405060708, 9}, u"SERVER::MODE::"}));
}

TEST_F(ProtocolPage, ShowsASettingsTextThatAClientTakesOver)
{
    const String text = fromUtf8(exampleOf("QV_PHIAL_MASTER|"));
    cls_AppServerConfig config;
    config.PACK(text);
    EXPECT_EQ(config.SERVERIP(), u"192.168.1.20");
    EXPECT_EQ(config.SETTINGS()->Get(u"SCREENNAMES"), Variant(true));
    EXPECT_EQ(config.PACK(), text);
    EXPECT_EQ(decodeAnnouncement(encodeAnnouncement({text})), Announcement{text});
}

TEST_F(ProtocolPage, ShowsTheSevenValuesOfASubmission)
{
    const auto request = parseRequest(fromUtf8(exampleOf("HIGHSCORE::SUBMIT::")));
    ASSERT_TRUE(request);
    const std::vector<Variant> values = CoreValuePacker::unpackAll(request->package);
    EXPECT_EQ(values, (std::vector<Variant>{8.0, 10.0, u"Salz", u"QV1;0;", u"Anna", u"PC07", u"anna7"}));
    EXPECT_EQ(CoreValuePacker::Pack(values), request->package);
}

TEST_F(ProtocolPage, ShowsAnswersThatReadAsTheirValues)
{
    EXPECT_EQ(answerValue(u"002:-5"), Variant(-5));
    EXPECT_EQ(answerValue(u"003:42"), Variant(42));
    EXPECT_EQ(answerValue(u"004:2.5"), Variant(2.5));
    EXPECT_EQ(answerValue(u"005:2.5"), Variant(2.5));
    EXPECT_EQ(answerValue(u"008:LOGON:OK"), Variant(u"LOGON:OK"));
    EXPECT_EQ(answerValue(u"011:1"), Variant(true));
    EXPECT_EQ(answerValue(u"000:QV1;1;E0=;"), Variant());
}

} // namespace

} // namespace phial
