#include "core/CoreDatabase.h"

#include "core/RuntimeError.h"
#include "core/tmp_Data.h"

namespace phial
{

DatabaseOwner& CoreDatabase::owner() const
{
    if (owner_ == nullptr) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *owner_;
}

/// The item's position, which may lie outside the list; 0 when a search finds nothing.
std::int32_t CoreDatabase::position(const Variant& id, bool forceIndex) const
{
    return forceIndex ? id.toWhole() : owner().DatabaseSearch(id);
}

std::int32_t CoreDatabase::existingPosition(const Variant& id, bool forceIndex) const
{
    const std::int32_t found = position(id, forceIndex);
    if (found < 1 || found > Count()) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return found;
}

std::int32_t CoreDatabase::Count() const
{
    return owner().DatabaseCount();
}

bool CoreDatabase::Exists(const Variant& pID) const
{
    return owner().DatabaseSearch(pID) > 0;
}

std::shared_ptr<tmp_Data> CoreDatabase::Item(const Variant& pID, bool pForceIndex) const
{
    return owner().DatabaseItem(existingPosition(pID, pForceIndex));
}

ObjectPtr CoreDatabase::ItemObj(const Variant& pID, bool pForceIndex) const
{
    return owner().DatabaseItemObj(existingPosition(pID, pForceIndex));
}

bool CoreDatabase::Remove(const Variant& pID, bool pForceIndex) const
{
    const std::int32_t found = position(pID, pForceIndex);
    if (found < 1 || found > Count()) {
        return false;
    }
    owner().DatabaseRemove(found);
    return true;
}

void CoreDatabase::Import(const std::shared_ptr<tmp_Data>& pItem) const
{
    if (!pItem) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    owner().DatabaseImport(pItem, nullptr);
}

void CoreDatabase::Import(const std::shared_ptr<tmp_Data>& pItem, const Variant& pID) const
{
    if (!pItem) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    owner().DatabaseImport(pItem, &pID);
}

void CoreDatabase::Clear() const
{
    owner().DatabaseClear();
}

DatabaseHolder::DatabaseHolder(DatabaseOwner& owner)
    : owner_(&owner), database_(std::make_shared<CoreDatabase>())
{
    database_->owner_ = owner_;
}

DatabaseHolder::~DatabaseHolder()
{
    release();
}

void DatabaseHolder::set(std::shared_ptr<CoreDatabase> database)
{
    if (!database) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    release();
    database_ = std::move(database);
    database_->owner_ = owner_;
}

void DatabaseHolder::release()
{
    // An engine that another list has taken over meanwhile is not ours to release.
    if (database_->owner_ == owner_) {
        database_->owner_ = nullptr;
    }
}

} // namespace phial
