#include "core/CoreDatabase.h"
#include "core/DATA.h"
#include "core/tmp_Data.h"
#include "core/tmp_Database.h"
#include "support/Raises.h"

#include <gtest/gtest.h>
#include <vector>

namespace phial
{
namespace
{

/// The smallest record: one text.
class Note : public tmp_Data, private DataOwner
{
public:
    std::shared_ptr<phial::DATA> DATA() override { return data_.get(); }
    void DATA(std::shared_ptr<phial::DATA> value) { data_.set(std::move(value)); }

    const String& text() const { return text_; }
    void text(String value) { text_ = std::move(value); }

private:
    bool DataCopy(tmp_Data& pSource) override
    {
        const auto* const source = dynamic_cast<Note*>(&pSource);
        if (source == nullptr) {
            return false;
        }
        text_ = source->text_;
        return true;
    }
    String DataPACK() override { return u"<" + text_ + u">"; }
    void DataUnpack(StringView pText) override { text_ = pText.substr(1, pText.size() - 2); }
    void DataStore(CoreDataStream& /*pStream*/) override {}
    void DataRead(CoreDataStream& /*pStream*/) override {}
    std::shared_ptr<tmp_Data> DataSpawn() override { return std::make_shared<Note>(); }

    DataHolder data_{*this, u"Phial.Note"};
    String text_;
};

/// A list of such records, found by their IDs.
class Notes : public tmp_Database, private DatabaseOwner
{
public:
    std::shared_ptr<CoreDatabase> DATABASE() override { return database_.get(); }
    void DATABASE(std::shared_ptr<CoreDatabase> value) { database_.set(std::move(value)); }

private:
    void DatabaseClear() override { items_.clear(); }
    std::int32_t DatabaseCount() override { return static_cast<std::int32_t>(items_.size()); }
    void DatabaseImport(const std::shared_ptr<tmp_Data>& pItem, const Variant* pID) override
    {
        items_.push_back(pItem);
        if (pID != nullptr) {
            pItem->DATA()->ID(*pID);
        }
    }
    std::shared_ptr<tmp_Data> DatabaseItem(std::int32_t pIndex) override
    {
        return items_[static_cast<std::size_t>(pIndex - 1)];
    }
    ObjectPtr DatabaseItemObj(std::int32_t /*pIndex*/) override { return nullptr; }
    void DatabaseRemove(std::int32_t pIndex) override { items_.erase(items_.begin() + pIndex - 1); }
    std::int32_t DatabaseSearch(const Variant& pKey) override
    {
        for (std::int32_t index = 1; index <= DatabaseCount(); ++index) {
            if (DatabaseItem(index)->DATA()->ID() == pKey) {
                return index;
            }
        }
        return 0;
    }

    DatabaseHolder database_{*this};
    std::vector<std::shared_ptr<tmp_Data>> items_;
};

TEST(Data, AsksItsOwnerForTheFields)
{
    Note note;
    note.text(u"H2O");
    EXPECT_EQ(note.DATA()->ClassTag(), u"Phial.Note");
    EXPECT_EQ(note.DATA()->Pack(), u"<H2O>");
    note.DATA()->Unpack(u"<CO2>");
    EXPECT_EQ(note.text(), u"CO2");
}

TEST(Data, CopyFillsTheRecordOnWhichItIsCalled)
{
    Note source;
    Note target;
    source.text(u"H2O");
    EXPECT_TRUE(target.DATA()->Copy(source));
    EXPECT_EQ(target.text(), u"H2O");
}

TEST(Data, SpawnMakesAnEmptyRecordOfTheClass)
{
    Note note;
    note.text(u"H2O");
    const auto spawned = std::dynamic_pointer_cast<Note>(note.DATA()->Spawn());
    ASSERT_NE(spawned, nullptr);
    EXPECT_EQ(spawned->text(), u"");
}

TEST(Data, OutlivesItsOwnerAndRaisesThen)
{
    std::shared_ptr<phial::DATA> header;
    {
        Note note;
        header = note.DATA();
        header->ID(u"key");
    }
    EXPECT_EQ(header->ID(), Variant(u"key"));
    EXPECT_RAISES(header->Pack(), ObjectNotSet);
}

TEST(Data, AReplacedHeaderLosesItsOwnerAndTheNewOneGainsIt)
{
    Note note;
    note.text(u"H2O");
    const auto old = note.DATA();
    note.DATA(std::make_shared<phial::DATA>());
    EXPECT_RAISES(old->Pack(), ObjectNotSet);
    EXPECT_EQ(note.DATA()->Pack(), u"<H2O>");
    EXPECT_RAISES(note.DATA(nullptr), ObjectNotSet);
}

TEST(Data, AHeaderTakenOverStaysWithItsNewRecord)
{
    Note taker;
    taker.text(u"taker");
    {
        Note giver;
        taker.DATA(giver.DATA());
    }
    EXPECT_EQ(taker.DATA()->Pack(), u"<taker>");
}

class Database : public ::testing::Test
{
protected:
    Database()
    {
        for (const StringView id : {u"H", u"C", u"O"}) {
            database().Import(std::make_shared<Note>(), id);
        }
    }
    CoreDatabase& database() { return *notes.DATABASE(); }

    Notes notes;
};

TEST_F(Database, FindsByPositionAndBySearch)
{
    EXPECT_EQ(database().Count(), 3);
    EXPECT_EQ(database().Item(2, true)->DATA()->ID(), Variant(u"C"));
    EXPECT_EQ(database().Item(u"O", false)->DATA()->ID(), Variant(u"O"));
    EXPECT_EQ(database().Item(u"3", true)->DATA()->ID(), Variant(u"O"));
    EXPECT_TRUE(database().Exists(u"H"));
    EXPECT_FALSE(database().Exists(u"N"));
}

TEST_F(Database, AnItemThatIsNotThereRaisesIndexOutOfBounds)
{
    EXPECT_RAISES(database().Item(0, true), IndexOutOfBounds);
    EXPECT_RAISES(database().Item(4, true), IndexOutOfBounds);
    EXPECT_RAISES(database().Item(u"N", false), IndexOutOfBounds);
}

TEST_F(Database, RemoveAnswersWhetherThereWasSuchAnItem)
{
    EXPECT_TRUE(database().Remove(u"C", false));
    EXPECT_FALSE(database().Remove(u"C", false));
    EXPECT_TRUE(database().Remove(1, true));
    EXPECT_FALSE(database().Remove(2, true));
    EXPECT_EQ(database().Item(1, true)->DATA()->ID(), Variant(u"O"));
}

TEST_F(Database, ImportWithoutIdLeavesTheItemsOwn)
{
    const auto note = std::make_shared<Note>();
    note->DATA()->ID(u"own");
    database().Import(note);
    EXPECT_EQ(database().Item(4, true)->DATA()->ID(), Variant(u"own"));
    EXPECT_RAISES(database().Import(nullptr), ObjectNotSet);
}

TEST_F(Database, ClearEmptiesTheList)
{
    database().Clear();
    EXPECT_EQ(database().Count(), 0);
}

TEST_F(Database, AReplacedEngineLosesItsOwner)
{
    const auto old = notes.DATABASE();
    notes.DATABASE(std::make_shared<CoreDatabase>());
    EXPECT_RAISES(old->Count(), ObjectNotSet);
    EXPECT_EQ(database().Count(), 3);
}

} // namespace
} // namespace phial
