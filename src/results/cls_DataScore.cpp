#include "results/cls_DataScore.h"

#include "core/CoreDataStream.h"
#include "core/CoreValuePacker.h"
#include "core/Members.h"
#include "core/ProgramTitle.h"
#include "results/ListRecord.h"
#include "results/Mark.h"
#include "visual/OneLine.h"

#include <array>

namespace phial
{

namespace
{

constexpr StringView ScoreVersion = u"2.5";
constexpr StringView VersionWithoutExercise = u"2.0";

constexpr Member ScoreMembers[] = {
    {u"ID", [](Object& object) { return Variant(static_cast<cls_DataScore&>(object).ID()); },
     [](Object& object, const Variant& value) { static_cast<cls_DataScore&>(object).ID(value.toText()); }},
    members::property<cls_DataScore, double, &cls_DataScore::POINTS, &cls_DataScore::POINTS>(u"POINTS"),
    members::property<cls_DataScore, double, &cls_DataScore::POINTSMAX, &cls_DataScore::POINTSMAX>(
        u"POINTSMAX"),
    members::textProperty<cls_DataScore, &cls_DataScore::SCREENNAME, &cls_DataScore::SCREENNAME>(
        u"SCREENNAME"),
    members::textProperty<cls_DataScore, &cls_DataScore::USERNAME, &cls_DataScore::USERNAME>(u"USERNAME"),
    members::textProperty<cls_DataScore, &cls_DataScore::COMPUTER, &cls_DataScore::COMPUTER>(u"COMPUTER"),
    members::textProperty<cls_DataScore, &cls_DataScore::UEBM, &cls_DataScore::UEBM>(u"UEBM"),
    members::property<cls_DataScore, Moment, &cls_DataScore::TIMESTAMP, &cls_DataScore::TIMESTAMP>(
        u"TIMESTAMP"),
    members::property<cls_DataScore, std::int32_t, &cls_DataScore::RANK, &cls_DataScore::RANK>(u"RANK"),
};

} // namespace

cls_DataScore::cls_DataScore() : data_(*this, programTitle() + u".cls_DataScore") {}

String cls_DataScore::ID() const
{
    return data_.get()->ID().toText();
}

void cls_DataScore::ID(StringView value)
{
    data_.get()->ID(value);
}

const std::shared_ptr<CoreParameters>& cls_DataScore::ADDITIONAL()
{
    return madeIfMissing(additional_);
}

String cls_DataScore::TEXT()
{
    String text = u"Rang: \t" + Variant(rank_).toText() + u"\r\n";
    text += u"Name: \t" + oneLine(screenName_) + u"\r\n";
    text += u"Login: \t" + oneLine(userName_) + u"\r\n";
    text += u"Rechner: \t" + oneLine(computer_) + u"\r\n";
    text += u"Datum: \t" + dayText(timeStamp_) + u"\r\n";
    text += u"Uhrzeit: \t" + timeText(timeStamp_) + u"\r\n";
    text += u"Punkte: \t" + Variant(points_).toText();
    if (pointsMax_ > 0) {
        text += u" von " + Variant(pointsMax_).toText();
    }
    text += u"\r\nNote: \t";
    text += markFor(points_, pointsMax_).words;
    text += u"\r\nZusatzfelder: \r\n";
    return text += ADDITIONAL()->Text();
}

String cls_DataScore::TEXTLINE()
{
    const std::array<String, 10> fields = {
        Variant(rank_).toText(),
        screenName_,
        userName_,
        computer_,
        dayText(timeStamp_),
        timeText(timeStamp_),
        Variant(points_).toText(),
        Variant(pointsMax_).toText(),
        String(markFor(points_, pointsMax_).words),
        ADDITIONAL()->TextLine(),
    };
    return tabbed(fields);
}

MemberTable cls_DataScore::members() const
{
    return ScoreMembers;
}

bool cls_DataScore::DataCopy(tmp_Data& pSource)
{
    auto* source = dynamic_cast<cls_DataScore*>(&pSource);
    if (!source) {
        return false;
    }
    data_.get()->ID(source->data_.get()->ID());
    rank_ = source->rank_;
    screenName_ = source->screenName_;
    userName_ = source->userName_;
    computer_ = source->computer_;
    uebm_ = source->uebm_;
    points_ = source->points_;
    pointsMax_ = source->pointsMax_;
    timeStamp_ = source->timeStamp_;
    ADDITIONAL()->CopyFrom(*source->ADDITIONAL());
    return true;
}

String cls_DataScore::DataPACK()
{
    return CoreValuePacker::Pack({data_.get()->ID(), rank_, screenName_, userName_, computer_, uebm_, points_,
                                  pointsMax_, timeStamp_, ADDITIONAL()->Pack()});
}

void cls_DataScore::DataUnpack(StringView pText)
{
    std::array<Variant, 10> values;
    auto& [id, rank, screenName, userName, computer, uebm, points, pointsMax, timeStamp, additional] = values;
    CoreValuePacker::Unpack(
        pText, {id, rank, screenName, userName, computer, uebm, points, pointsMax, timeStamp, additional});
    ADDITIONAL()->Unpack(additional.toText(), 0, 1);
    rank_ = rank.toWhole();
    screenName_ = screenName.toText();
    userName_ = userName.toText();
    computer_ = computer.toText();
    uebm_ = uebm.toText();
    points_ = points.toReal();
    pointsMax_ = pointsMax.toReal();
    timeStamp_ = timeStamp.toMoment();
    data_.get()->ID(id);
}

void cls_DataScore::DataStore(CoreDataStream& pStream)
{
    pStream.Write(ScoreVersion, data_.get()->ID(), rank_, screenName_, userName_, computer_, uebm_, points_,
                  pointsMax_, timeStamp_, ADDITIONAL()->Pack());
}

void cls_DataScore::DataRead(CoreDataStream& pStream)
{
    String version;
    pStream.Read(version);
    version = upperCase(version);
    if (version != ScoreVersion && version != VersionWithoutExercise) {
        return;
    }
    data_.get()->ID(pStream.ReadValue());
    pStream.Read(rank_, screenName_, userName_, computer_);
    if (version != VersionWithoutExercise) {
        pStream.Read(uebm_);
    }
    String additional;
    pStream.Read(points_, pointsMax_, timeStamp_, additional);
    ADDITIONAL()->Unpack(additional, 0, 1);
}

std::shared_ptr<tmp_Data> cls_DataScore::DataSpawn()
{
    return std::make_shared<cls_DataScore>();
}

} // namespace phial
