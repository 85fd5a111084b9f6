#include "help_pages/HelpSource.h"

#include "core/RuntimeError.h"

#include <gtest/gtest.h>

namespace help_pages
{
namespace
{

constexpr phial::StringView Small = u"# Help\n= First\n== One\n";

TEST(HelpSource, HasChaptersWithPagesWithBlocks)
{
    const Book book = Book::read(
        u"# Help\r\n\r\n= First\r\n== One\r\nSome\r\ntext.\r\n\r\nMore.\r\n= Second\r\n== Two\r\n> H2O");
    EXPECT_EQ(book.title, u"Help");
    ASSERT_EQ(book.chapters.size(), 2U);
    EXPECT_EQ(book.chapters[0].title, u"First");
    ASSERT_EQ(book.chapters[0].pages.size(), 1U);
    const Page& page = book.chapters[0].pages[0];
    EXPECT_EQ(page.title, u"One");
    ASSERT_EQ(page.blocks.size(), 2U);
    EXPECT_EQ(page.blocks[0].text, u"Some text.");
    EXPECT_EQ(page.blocks[1].text, u"More.");
    EXPECT_EQ(book.chapters[1].pages[0].blocks[0].kind, Block::Kind::Term);
}

TEST(HelpSource, TellsItsBlocksByTheirSigns)
{
    const Book book =
        Book::read(phial::String(Small) + u"* Press\non.\n* Wait.\n[F1] helps\nyou\n! Mind\nthis.\n"
                                          u"% atoms H\nText.\n");
    const auto& blocks = book.chapters[0].pages[0].blocks;
    ASSERT_EQ(blocks.size(), 6U);
    EXPECT_EQ(blocks[0].kind, Block::Kind::Step);
    EXPECT_EQ(blocks[0].text, u"Press on.");
    EXPECT_EQ(blocks[1].text, u"Wait.");
    EXPECT_EQ(blocks[2].kind, Block::Kind::Key);
    EXPECT_EQ(blocks[2].key, u"F1");
    EXPECT_EQ(blocks[2].text, u"helps you");
    EXPECT_EQ(blocks[3].kind, Block::Kind::Note);
    EXPECT_EQ(blocks[3].text, u"Mind this.");
    EXPECT_EQ(blocks[4].kind, Block::Kind::Picture);
    EXPECT_EQ(blocks[5].kind, Block::Kind::Paragraph);
}

TEST(HelpSource, IsSpokenWithoutMarkupSignsAndPictures)
{
    const Book book = Book::read(phial::String(Small) +
                                 u"* <b>Press</b>.\n* Wait.\n[F1] helps\n! Mind.\n% atoms H\n> H2O\n");
    EXPECT_EQ(book.chapters[0].pages[0].spoken(), u"One.\n1. Press.\n2. Wait.\nF1: helps\nMind.\nH2O\n");
    EXPECT_EQ(book.spoken(), u"Help.\n1: First\n");
}

TEST(HelpSource, RefusesABookOfAnotherShape)
{
    for (const phial::StringView text :
         {u"", u"# Help\n", u"# Help\n= Empty\n", u"# Help\n== Page\n", u"# Help\ntext\n",
          u"= No title\n== One\n", u"# Help\n= First\n* Step\n"}) {
        EXPECT_THROW(Book::read(text), phial::RuntimeError) << phial::toUtf8(text);
    }
    phial::String seven = u"# Help\n";
    for (int chapter = 0; chapter < 7; ++chapter) {
        seven += u"= Chapter\n== Page\n";
    }
    EXPECT_THROW(Book::read(seven), phial::RuntimeError);
}

} // namespace
} // namespace help_pages
