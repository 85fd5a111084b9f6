#pragma once

#include "core/DatabaseOwner.h"
#include "core/Object.h"
#include "core/Variant.h"

#include <cstdint>
#include <memory>

namespace phial
{

/// The engine of a list record: counts, finds, adds and removes the items that its owner keeps.
///
/// Like `DATA` it asks its owner for everything and raises 91 after the owner's end; a list record holds it
/// through a `DatabaseHolder`.
///
/// An ID names an item in one of two ways: with `ForceIndex` it is a position, the first being 1; without,
/// the owner searches for it.
class CoreDatabase
{
public:
    CoreDatabase() = default;
    CoreDatabase(const CoreDatabase&) = delete;
    CoreDatabase& operator=(const CoreDatabase&) = delete;

    std::int32_t Count() const;

    /// Whether a search finds the ID.
    bool Exists(const Variant& pID) const;

    /// The item; raises 9 when there is none.
    std::shared_ptr<tmp_Data> Item(const Variant& pID, bool pForceIndex) const;
    /// The same item as an object that is reached by names.
    ObjectPtr ItemObj(const Variant& pID, bool pForceIndex) const;

    /// Removes the item; false when there is none.
    bool Remove(const Variant& pID, bool pForceIndex) const;

    /// Appends an item, and gives it an ID when there is one. Raises 91 for null.
    void Import(const std::shared_ptr<tmp_Data>& pItem) const;
    void Import(const std::shared_ptr<tmp_Data>& pItem, const Variant& pID) const;

    void Clear() const;

private:
    friend class DatabaseHolder;
    DatabaseOwner& owner() const;
    std::int32_t position(const Variant& id, bool forceIndex) const;
    std::int32_t existingPosition(const Variant& id, bool forceIndex) const;

    DatabaseOwner* owner_ = nullptr;
};

/// Keeps a list record's engine bound to the record, as `DataHolder` does with the header.
class DatabaseHolder
{
public:
    explicit DatabaseHolder(DatabaseOwner& owner);
    ~DatabaseHolder();
    DatabaseHolder(const DatabaseHolder&) = delete;
    DatabaseHolder& operator=(const DatabaseHolder&) = delete;

    const std::shared_ptr<CoreDatabase>& get() const { return database_; }

    /// Replaces the engine; raises 91 for null.
    void set(std::shared_ptr<CoreDatabase> database);

private:
    void release();

    DatabaseOwner* owner_;
    std::shared_ptr<CoreDatabase> database_;
};

} // namespace phial
