#include "core/DATA.h"

#include "core/RuntimeError.h"
#include "core/tmp_Data.h"

namespace phial
{

DataOwner& DATA::owner() const
{
    if (owner_ == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *owner_;
}

String DATA::Pack() const
{
    return owner().DataPACK();
}

void DATA::Unpack(StringView pText) const
{
    owner().DataUnpack(pText);
}

void DATA::Store(CoreDataStream& pStream) const
{
    owner().DataStore(pStream);
}

void DATA::Read(CoreDataStream& pStream) const
{
    owner().DataRead(pStream);
}

bool DATA::Copy(tmp_Data& pSource) const
{
    return owner().DataCopy(pSource);
}

std::shared_ptr<tmp_Data> DATA::Spawn() const
{
    return owner().DataSpawn();
}

DataHolder::DataHolder(DataOwner& owner, String classTag) : owner_(&owner), data_(std::make_shared<DATA>())
{
    data_->owner_ = owner_;
    data_->ClassTag(std::move(classTag));
}

DataHolder::~DataHolder()
{
    release();
}

void DataHolder::set(std::shared_ptr<DATA> data)
{
    if (!data) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    release();
    data_ = std::move(data);
    data_->owner_ = owner_;
}

void DataHolder::release()
{
    // A header that another record has taken over meanwhile is not ours to release.
    if (data_->owner_ == owner_) {
        data_->owner_ = nullptr;
    }
}

} // namespace phial
