#include "results/cls_DataEvent.h"

#include "core/CoreDataStream.h"
#include "core/CoreValuePacker.h"
#include "core/Members.h"
#include "core/ProgramTitle.h"
#include "results/ListRecord.h"
#include "visual/OneLine.h"

#include <array>

namespace phial
{

namespace
{

constexpr StringView EventVersion = u"2.0";

constexpr Member EventMembers[] = {
    members::textProperty<cls_DataEvent, &cls_DataEvent::SCREENNAME, &cls_DataEvent::SCREENNAME>(
        u"SCREENNAME"),
    members::textProperty<cls_DataEvent, &cls_DataEvent::USERNAME, &cls_DataEvent::USERNAME>(u"USERNAME"),
    members::textProperty<cls_DataEvent, &cls_DataEvent::COMPUTER, &cls_DataEvent::COMPUTER>(u"COMPUTER"),
    members::textProperty<cls_DataEvent, &cls_DataEvent::ACTION, &cls_DataEvent::ACTION>(u"ACTION"),
    members::property<cls_DataEvent, Moment, &cls_DataEvent::TIMESTAMP, &cls_DataEvent::TIMESTAMP>(
        u"TIMESTAMP"),
};

} // namespace

cls_DataEvent::cls_DataEvent() : data_(*this, programTitle() + u".cls_DataEvent") {}

const std::shared_ptr<CoreParameters>& cls_DataEvent::ADDITIONAL()
{
    return madeIfMissing(additional_);
}

String cls_DataEvent::TEXT()
{
    String text = u"Name: \t" + oneLine(screenName_) + u"\r\n";
    text += u"Login: \t" + oneLine(userName_) + u"\r\n";
    text += u"Rechner: \t" + oneLine(computer_) + u"\r\n";
    text += u"Datum: \t" + dayText(timeStamp_) + u"\r\n";
    text += u"Uhrzeit: \t" + timeText(timeStamp_) + u"\r\n";
    text += u"Aktion: \t" + oneLine(action_) + u"\r\n";
    text += u"Zusatz: \t" + ADDITIONAL()->Text() + u"\r\n";
    return text;
}

String cls_DataEvent::TEXTLINE()
{
    const std::array<String, 7> fields = {
        screenName_,
        userName_,
        computer_,
        dayText(timeStamp_),
        timeText(timeStamp_),
        action_,
        ADDITIONAL()->TextLine(),
    };
    return tabbed(fields);
}

MemberTable cls_DataEvent::members() const
{
    return EventMembers;
}

bool cls_DataEvent::DataCopy(tmp_Data& pSource)
{
    auto* source = dynamic_cast<cls_DataEvent*>(&pSource);
    if (!source) {
        return false;
    }
    data_.get()->ID(source->data_.get()->ID());
    screenName_ = source->screenName_;
    userName_ = source->userName_;
    computer_ = source->computer_;
    action_ = source->action_;
    timeStamp_ = source->timeStamp_;
    ADDITIONAL()->CopyFrom(*source->ADDITIONAL());
    return true;
}

String cls_DataEvent::DataPACK()
{
    return CoreValuePacker::Pack(
        {data_.get()->ID(), screenName_, userName_, computer_, action_, timeStamp_, ADDITIONAL()->Pack()});
}

void cls_DataEvent::DataUnpack(StringView pText)
{
    std::array<Variant, 7> values;
    auto& [id, screenName, userName, computer, action, timeStamp, additional] = values;
    CoreValuePacker::Unpack(pText, {id, screenName, userName, computer, action, timeStamp, additional});
    ADDITIONAL()->Unpack(additional.toText(), 0, 1);
    screenName_ = screenName.toText();
    userName_ = userName.toText();
    computer_ = computer.toText();
    action_ = action.toText();
    timeStamp_ = timeStamp.toMoment();
    data_.get()->ID(id);
}

void cls_DataEvent::DataStore(CoreDataStream& pStream)
{
    pStream.Write(EventVersion, data_.get()->ID(), screenName_, userName_, computer_, action_, timeStamp_,
                  ADDITIONAL()->Pack());
}

void cls_DataEvent::DataRead(CoreDataStream& pStream)
{
    String version;
    pStream.Read(version);
    if (upperCase(version) != EventVersion) {
        return;
    }
    data_.get()->ID(pStream.ReadValue());
    String additional;
    pStream.Read(screenName_, userName_, computer_, action_, timeStamp_, additional);
    ADDITIONAL()->Unpack(additional, 0, 1);
}

std::shared_ptr<tmp_Data> cls_DataEvent::DataSpawn()
{
    return std::make_shared<cls_DataEvent>();
}

} // namespace phial
