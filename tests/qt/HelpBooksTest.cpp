#include "dialogs/HelpBook.h"
#include "help_pages/HelpSource.h"
#include "support/Places.h"

#include <QColor>
#include <QDirIterator>
#include <QFile>
#include <QImage>

#include <gtest/gtest.h>
#include <map>
#include <set>

namespace
{

namespace files = std::filesystem;

/// The help book of one app in one language, as it is installed, beside the text that it was painted from.
class HelpBooks : public testing::TestWithParam<std::tuple<const char*, const char*>>
{
protected:
    std::string app() const { return std::get<0>(GetParam()); }
    std::string language() const { return std::get<1>(GetParam()); }
    files::path host() const { return phial::test::sourceFolder() / "hosts" / app(); }
    files::path german() const { return host() / "data" / "Hilfe"; }
    files::path book() const { return language() == "en" ? german() / "en" : german(); }
    help_pages::Book source() const
    {
        return help_pages::Book::read(phial::fromUtf8(read(host() / "help" / (language() + ".txt"))));
    }

    static QString named(const files::path& file) { return QString::fromStdU16String(file.u16string()); }
    static std::string read(const files::path& path)
    {
        QFile file(named(path));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
        return file.readAll().toStdString();
    }
    /// The colours of the map, but for its white ground, with a place that has each.
    std::map<std::string, QPoint> mapColours() const
    {
        const QImage map(named(book() / "menu_choice.gif"));
        EXPECT_FALSE(map.isNull());
        std::map<std::string, QPoint> colours;
        for (int y = 0; y < map.height(); ++y) {
            for (int x = 0; x < map.width(); ++x) {
                const QColor colour = map.pixelColor(x, y);
                if (colour != QColor(Qt::white)) {
                    colours.emplace(colour.name().toUpper().toStdString(), QPoint(x, y));
                }
            }
        }
        return colours;
    }
    /// Relative to the folder.
    static std::set<std::string> filesOf(const files::path& folder)
    {
        std::set<std::string> found;
        for (const auto& entry : files::recursive_directory_iterator(folder)) {
            const std::string name = entry.path().lexically_relative(folder).generic_string();
            if (entry.is_regular_file() && name.rfind("en/", 0) != 0) {
                found.insert(name);
            }
        }
        return found;
    }
    static void expectPage(const files::path& page)
    {
        const QImage picture(named(page));
        QImage finer(named(files::path(page).replace_filename(page.stem().string() + "@2x.png")));
        EXPECT_EQ(picture.size(), QSize(960, 400)) << page;
        EXPECT_EQ(finer.size(), QSize(1920, 800)) << page;
    }
};

TEST_P(HelpBooks, OpensAChapterWithPagesFromEachColourOfItsMenu)
{
    const auto colours = mapColours();
    EXPECT_EQ(colours.size(), source().chapters.size());
    for (const auto& [colour, place] : colours) {
        std::string chapter = phial::toUtf8(phial::helpChapterOf(phial::fromUtf8(colour)));
        ASSERT_EQ(chapter.size(), 3U) << colour << " leads nowhere";
        chapter.pop_back();
        EXPECT_TRUE(files::exists(book() / chapter / "01.gif")) << chapter;
    }
}

TEST_P(HelpBooks, HasMenuTilesThatStandOutWhereTheyArePressed)
{
    const QImage menu(named(book() / "menu.gif"));
    const QColor paper = menu.pixelColor(0, 0);
    for (const auto& [colour, corner] : mapColours()) {
        EXPECT_NE(menu.pixelColor(corner + QPoint(24, 10)), paper) << colour;
    }
}

TEST_P(HelpBooks, HasAPageForEachOfItsTextAndSaysWhatStandsThere)
{
    const help_pages::Book text = source();
    expectPage(book() / "menu.gif");
    EXPECT_EQ(read(book() / "menu.txt"), phial::toUtf8(text.spoken()));
    std::size_t pages = 0;
    for (std::size_t chapter = 0; chapter < text.chapters.size(); ++chapter) {
        const files::path folder = book() / ("K" + std::to_string(chapter + 1));
        for (std::size_t page = 0; page < text.chapters[chapter].pages.size(); ++page) {
            const std::string name = "0" + std::to_string(page + 1);
            expectPage(folder / (name + ".gif"));
            EXPECT_EQ(read(folder / (name + ".txt")),
                      phial::toUtf8(text.chapters[chapter].pages[page].spoken()))
                << "tools/make_help has not been run since";
            ++pages;
        }
    }
    EXPECT_EQ(filesOf(book()).size(), 4 + 3 * pages) << "a page that is not in the text";
}

TEST_P(HelpBooks, HasTheSamePagesInBothLanguages)
{
    EXPECT_EQ(filesOf(german()), filesOf(german() / "en"));
}

INSTANTIATE_TEST_SUITE_P(Apps, HelpBooks,
                         testing::Combine(testing::Values("molmasse", "puzzle", "formeln"),
                                          testing::Values("de", "en")),
                         [](const auto& test) {
                             return std::string(std::get<0>(test.param)) + "_" + std::get<1>(test.param);
                         });

} // namespace
