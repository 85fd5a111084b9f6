#pragma once

#include "core/CoreParameters.h"
#include "core/DATA.h"
#include "core/Moment.h"
#include "core/Object.h"
#include "core/tmp_Data.h"

#include <memory>
#include <utility>

namespace phial
{

/// One entry of the event log: who did what when.
class cls_DataEvent : public tmp_Data, public Object, private DataOwner
{
public:
    cls_DataEvent();

    /// The record's header. Setting null raises 91.
    std::shared_ptr<phial::DATA> DATA() override { return data_.get(); }
    void DATA(std::shared_ptr<phial::DATA> value) { data_.set(std::move(value)); }

    /// The name shown in lists, the login, the computer.
    const String& SCREENNAME() const { return screenName_; }
    void SCREENNAME(String value) { screenName_ = std::move(value); }
    const String& USERNAME() const { return userName_; }
    void USERNAME(String value) { userName_ = std::move(value); }
    const String& COMPUTER() const { return computer_; }
    void COMPUTER(String value) { computer_ = std::move(value); }

    /// What happened, in the words of the program.
    const String& ACTION() const { return action_; }
    void ACTION(String value) { action_ = std::move(value); }

    Moment TIMESTAMP() const { return timeStamp_; }
    void TIMESTAMP(Moment value) { timeStamp_ = value; }

    /// Further named values; made when first read.
    const std::shared_ptr<CoreParameters>& ADDITIONAL();
    void ADDITIONAL(std::shared_ptr<CoreParameters> value) { additional_ = std::move(value); }

    /// The entry in several lines, and in one line of seven fields each followed by a tab.
    String TEXT();
    String TEXTLINE();

    StringView typeName() const override { return u"cls_DataEvent"; }
    MemberTable members() const override;

private:
    bool DataCopy(tmp_Data& pSource) override;
    String DataPACK() override;
    void DataUnpack(StringView pText) override;
    void DataStore(CoreDataStream& pStream) override;
    void DataRead(CoreDataStream& pStream) override;
    std::shared_ptr<tmp_Data> DataSpawn() override;

    DataHolder data_;
    String screenName_;
    String userName_;
    String computer_;
    String action_;
    Moment timeStamp_;
    std::shared_ptr<CoreParameters> additional_; // made at first use
};

} // namespace phial
