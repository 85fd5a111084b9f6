#pragma once

#include "core/Object.h"
#include "core/Variant.h"

#include <cstdint>
#include <memory>

namespace phial
{

class tmp_Data;

/// What a `CoreDatabase` engine asks of the list record that owns it. Positions count from 1.
class DatabaseOwner
{
public:
    virtual ~DatabaseOwner() = default;

    virtual void DatabaseClear() = 0;
    virtual std::int32_t DatabaseCount() = 0;
    /// Appends an item; an ID that is given (not null) becomes the item's.
    virtual void DatabaseImport(const std::shared_ptr<tmp_Data>& pItem, const Variant* pID) = 0;
    virtual std::shared_ptr<tmp_Data> DatabaseItem(std::int32_t pIndex) = 0;
    /// The same item as an object that is reached by names; null for items that are none.
    virtual ObjectPtr DatabaseItemObj(std::int32_t pIndex) = 0;
    virtual void DatabaseRemove(std::int32_t pIndex) = 0;
    /// The position of the first item that fits the key; 0 when none does.
    virtual std::int32_t DatabaseSearch(const Variant& pKey) = 0;
};

} // namespace phial
