#include "chem/MoleculeTable.h"
#include "chem/cls_DataElements.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "core/NativePath.h"
#include "support/HeadlessSession.h"
#include "support/Places.h"

#include <gtest/gtest.h>

namespace phial::test
{
namespace
{

class InstalledModels : public HeadlessSession
{
protected:
    InstalledModels() { elements.IMPORT2(tree + u"Resources\\data\\elements2.dat"); }

    /// The names in the table, in its order.
    std::vector<String> names() const
    {
        std::vector<String> names;
        for (const StringView line : split(text, u"\n")) {
            if (const std::size_t tab = line.find(u'\t'); tab != StringView::npos) {
                names.emplace_back(line.substr(0, tab));
            }
        }
        return names;
    }

    const String tree = systemPath(test::treeFolder()) + u"\\";
    const String text = coreRoot().CoreFiles().ReadText(tree + u"apps\\rasmol\\data\\moleküle2.txt");
    const MoleculeTable table{text};
    cls_DataElements elements;
};

TEST_F(InstalledModels, AreAllRead)
{
    EXPECT_EQ(table.size(), names().size());
    EXPECT_GT(table.size(), 100U);
}

TEST_F(InstalledModels, HaveTheMolarMassOfTheirFormula)
{
    for (const String& name : names()) {
        const MoleculeModel* model = table.find(name);
        ASSERT_TRUE(model) << toUtf8(name);
        EXPECT_NEAR(model->mass, elements.MOL(model->formula), 0.05) << toUtf8(name);
    }
}

TEST_F(InstalledModels, AreFoundAsPupilsNameThem)
{
    for (const auto& [asked, file] :
         std::initializer_list<std::pair<StringView, StringView>>{{u"wasser", u"water"},
                                                                  {u"H2O", u"water"},
                                                                  {u"CH3COOH", u"acetic"},
                                                                  {u"2-Methylpropan", u"isobutan"},
                                                                  {u"Ca(OH)2", u""},
                                                                  {u"c2h6", u""},
                                                                  {u"C2H6", u"ethane"},
                                                                  {u"Carbon dioxide", u"co2"},
                                                                  {u"CO", u"co"}}) {
        const MoleculeModel* model = table.find(asked);
        EXPECT_EQ(model ? model->file : String(), file) << toUtf8(asked);
    }
}

} // namespace
} // namespace phial::test
