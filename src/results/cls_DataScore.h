#pragma once

#include "core/CoreParameters.h"
#include "core/DATA.h"
#include "core/Moment.h"
#include "core/Object.h"
#include "core/tmp_Data.h"

#include <cstdint>
#include <memory>

namespace phial
{

/// One entry of a score list: who reached how many points when, and in which exercise.
class cls_DataScore : public tmp_Data, public Object, private DataOwner
{
public:
    cls_DataScore();

    std::shared_ptr<phial::DATA> DATA() override { return data_.get(); }
    void DATA(std::shared_ptr<phial::DATA> value) { data_.set(std::move(value)); }

    /// Kept in the header, as text.
    String ID() const;
    void ID(StringView value);

    double POINTS() const { return points_; }
    void POINTS(double value) { points_ = value; }
    /// Points that could be reached.
    double POINTSMAX() const { return pointsMax_; }
    void POINTSMAX(double value) { pointsMax_ = value; }

    /// Further named values; made when first read.
    const std::shared_ptr<CoreParameters>& ADDITIONAL();
    void ADDITIONAL(std::shared_ptr<CoreParameters> value) { additional_ = std::move(value); }

    /// The name shown in lists, the login, the computer.
    const String& SCREENNAME() const { return screenName_; }
    void SCREENNAME(String value) { screenName_ = std::move(value); }
    const String& USERNAME() const { return userName_; }
    void USERNAME(String value) { userName_ = std::move(value); }
    const String& COMPUTER() const { return computer_; }
    void COMPUTER(String value) { computer_ = std::move(value); }

    /// The exercise that the score belongs to.
    const String& UEBM() const { return uebm_; }
    void UEBM(String value) { uebm_ = std::move(value); }

    Moment TIMESTAMP() const { return timeStamp_; }
    void TIMESTAMP(Moment value) { timeStamp_ = value; }

    /// The position, as `cls_DataScores.SORT` last set it.
    std::int32_t RANK() const { return rank_; }
    void RANK(std::int32_t value) { rank_ = value; }

    /// The entry in several lines, and in one line of ten fields each followed by a tab.
    String TEXT();
    String TEXTLINE();

    StringView typeName() const override { return u"cls_DataScore"; }
    MemberTable members() const override;

private:
    bool DataCopy(tmp_Data& pSource) override;
    String DataPACK() override;
    void DataUnpack(StringView pText) override;
    void DataStore(CoreDataStream& pStream) override;
    void DataRead(CoreDataStream& pStream) override;
    std::shared_ptr<tmp_Data> DataSpawn() override;

    DataHolder data_;
    double points_ = 0;
    double pointsMax_ = 0;
    std::shared_ptr<CoreParameters> additional_;
    String screenName_;
    String userName_;
    String uebm_;
    String computer_;
    Moment timeStamp_;
    std::int32_t rank_ = 0;
};

} // namespace phial
